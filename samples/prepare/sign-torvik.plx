62b984fdc360f8043c8d8a54561d6e4c
"4 June 2025"
"Lea Okoro"
"Mr Weiss"
"Year 9"
"Way sign"
"Acrylic, two-colour"
"140"
"80"
"3"
50,5,2,2,1
1
2,3500,240,60,3,1,#FALSE#,#FALSE#,#FALSE#,0,0,0
2
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,1,0,0
6,2200,90,3.5,0,0.2,#FALSE#
3
4,4000,300,75,0.4,0.4,#FALSE#,#FALSE#,#FALSE#,0,0,0
4
3,4000,280,70,1,0.5,#FALSE#,#FALSE#,#FALSE#,0,0,0
2
3
4
1
0
0
0
0
