d96507fd24c3e9cc5761880bcfad1ddd
"2 June 2025"
"Mo Haddad"
"Ms Lind"
"Year 10"
"Base plate"
"Acrylic 3 mm"
"100"
"70"
"3"
50,5,2,2,1
1
2,3500,240,60,3.2,1.1,#FALSE#,#FALSE#,#FALSE#,0,120,0.2
2
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,2,0,0
6,2200,90,4,2,0.2,#TRUE#
7,1400,70,4,2,0.2,#TRUE#
3
4,4000,300,75,0.3,0.3,#FALSE#,#FALSE#,#FALSE#,0,0,0
3
2
1
0
0
0
0
0
