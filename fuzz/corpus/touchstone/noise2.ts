0[Version] 2.0
# Hz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 2
[Number of Noise Frequencies] 2
[Network Data]
1 1 0 2 0 3 0 4 0
2 .1 0 .2 0 .3 0 .4 0
[Noise Data]
1 .7 .64 69 19
2 2.7 .46 -33 20
[End]
