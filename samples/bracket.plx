7857e626864d2a36818f5f23e43a0a5d
"21 May 2025"
"Jo Novak"
"Mr Okafor"
"Engineering club"
"Motor bracket"
"Aluminium 5 mm"
"100"
"70"
"5"
50,5,2,3,1
1
1,3000,180,45,5.2,1,#FALSE#,#FALSE#,#FALSE#,0,120,0.2
2
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,2,0,0
6,2200,110,6.5,2,0.5,#TRUE#
7,1400,80,7,2.5,0.5,#TRUE#
4
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,1,0,0
5,2800,90,6,0,0.3,#FALSE#
2
4
1
0
0
0
0
0
