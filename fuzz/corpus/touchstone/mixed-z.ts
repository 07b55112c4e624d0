0[Version] 2.1
# Hz Z MA
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 1
[Mixed-Mode Order] D2,1 C2,1
[Network Data]
1 1 0 2 0 3 0 4 0
[End]
