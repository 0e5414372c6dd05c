# Called with the file to read and the picture to write.
set terminal pngcairo size 681,581
set output ARG2
set multiplot layout 2,1
set ylabel "P [mm]"
plot ARG1 skip 3 using 1:2 with lines lw 2 lc "blue" title "hN", \
     ARG1 skip 3 using 1:4 with lines lw 2 lc "red" title "heff"
set xlabel "Zeit [h]"
set ylabel "Q [m3/s]"
plot ARG1 skip 3 using 1:9 with lines lw 2 lc "blue" title "Qb", \
     ARG1 skip 3 using 1:10 with lines lw 2 lc "green" title "Qges"
unset multiplot
