0[Version] 2.0
# Hz S RI R 50
[Number of Ports] 3
[Number of Frequencies] 1
[Reference] 50 75
25
[Network Data]
1 1 0 2 0 3 0
4 0 5 0 6 0
7 0 8 0 9 0
[End]
