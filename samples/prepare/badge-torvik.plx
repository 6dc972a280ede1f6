ca98a4e7aba768b78fa0801fe4381505
"3 June 2025"
"Ida Berg"
"Ms Lind"
"Year 8"
"Badge"
"Plywood 4 mm"
"80"
"80"
"4"
50,5,2,2,1
3
4,4000,300,75,0.5,0.5,#FALSE#,#FALSE#,#FALSE#,0,0,0
4
2,3500,240,60,4.2,1.4,#FALSE#,#TRUE#,#FALSE#,1,0,0
0,0,0,0,0,0,#FALSE#
3
4
0
0
0
0
0
0
