06c1d09d68a315159810f38a84c4952b
"14 March 2025"
"Sam Carter"
"Ms Grün"
"Year 9 Blue"
"Workshop name plate"
"Acrylic, two-colour"
"140"
"60"
"3"
50,5,2,2,1
1
4,4000,300,75,0.4,0.4,#FALSE#,#FALSE#,#FALSE#,0,0,0
2
2,3500,240,60,3,1,#FALSE#,#FALSE#,#FALSE#,0,0,0
1
2
0
0
0
0
0
0
