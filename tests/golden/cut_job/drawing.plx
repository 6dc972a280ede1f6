dcd033d98f29dfeebce497ad20a633eb
"14 March 2025"
"Ada Okoye"
"Mr Byron"
"9B"
"Badge"
"Acrylic"
"120"
"60"
"6"
50,5,2,2,1
1
3,2000,600,150,3,2,#FALSE#,#FALSE#,#FALSE#,0,400,0.5
2
12,3500,250,90,0.4,0,#FALSE#,#FALSE#,#FALSE#,0,0,0
1
2
0
0
0
0
0
0
