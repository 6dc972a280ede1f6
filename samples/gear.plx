2a9cc7164e94c99a207be63e6766e5e4
"3 June 2025"
"Alex Reid"
"Ms Grün"
"Year 11 Systems"
"Drive gear"
"Acetal"
"120"
"120"
"8"
50,5,2,2,1
1
3,5000,300,75,8.2,2,#FALSE#,#FALSE#,#FALSE#,0,150,0.2
2
2,4500,360,90,8.2,2,#FALSE#,#TRUE#,#FALSE#,2,180,0.2
0,0,0,0,0,0,#FALSE#
0,0,0,0,0,0,#FALSE#
2
1
0
0
0
0
0
0
