379d0762a92328f1bef442fc93db810f
""
"Priya Shah"
"Mr Okafor"
"Year 10 Design"
"Clock face"
"Birch plywood"
"120"
"120"
"6"
50,5,2,3,60
1
1,4500,600,150,6.2,2,#FALSE#,#FALSE#,#FALSE#,0,0,0
2
4,4500,480,120,0.5,0.5,#FALSE#,#FALSE#,#FALSE#,0,0,0
3
2,4500,450,120,6.2,1.5,#FALSE#,#TRUE#,#FALSE#,2,0,0
0,0,0,0,0,0,#FALSE#
0,0,0,0,0,0,#FALSE#
2
3
1
0
0
0
0
0
