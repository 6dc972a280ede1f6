0123456789abcdef0123456789abcdef
"1 May"
"A. ""Kid"""
""
"8b"
"Gear, small"
"Foam"
"100"
"70"
"5"
50,0,2,2,1
2
3,1200,300.5,100,4,2,#FALSE#,#FALSE#,#FALSE#,0,150,0.2
5
0,0,0,0,0,0,#TRUE#