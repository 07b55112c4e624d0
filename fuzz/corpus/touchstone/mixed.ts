0[Version] 2.0
# Hz S RI R 50
[Number of Ports] 3
[Number of Frequencies] 1
[Mixed-Mode Order] D1,2 S3
C1,2
[Network Data]
1 1 0 2 0 3 0
4 0 5 0 6 0
7 0 8 0 9 0
[End]
