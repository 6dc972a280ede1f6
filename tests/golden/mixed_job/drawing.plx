48f7ced5a3d529a9f18a6d2872bb80eb
"9 May 2025"
"Zoë Müller"
"Ω. Smith"
""
" Schild (groß) "
""
"60"
""
""
25,3,0.5,4,60
1
2,4000,800,200,1,0.6,#FALSE#,#FALSE#,#FALSE#,0,0,0.1
2
0,0,0,0,0,0,#FALSE#,#FALSE#,#TRUE#,0,0,0
3
0,0,0,0,0,0,#TRUE#,#TRUE#,#FALSE#,1,0,0
9,900,30,4,0,1.5,#FALSE#
5
2,5000,1000,333,0.15,0,#FALSE#,#FALSE#,#FALSE#,0,0,0
6
2,4000,700,100,2,2,#FALSE#,#TRUE#,#FALSE#,1,350,0
0,0,0,0,0,0,#FALSE#
3
5
1
6
0
0
0
0
