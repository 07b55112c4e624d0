2[Version] 2.0
# Hz S RI R 50
[Number of Ports] 2
[Number of Frequencies] 2
[Network Data]
1 1 0 2 0 3 0 4 0
2 .1 0 .2 0 .3 0 .4 0
[End]
