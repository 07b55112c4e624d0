0[Version] 2.0
# kHz H RI
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 2
[Network Data]
1 1 0 2 0 3 0 4 0
2 .1 0 .2 0 .3 0 .4 0
[End]
