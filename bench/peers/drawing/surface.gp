# gnuplot -e "data='surface.txt'; terminal='pngcairo size 1000,800'; picture='surface.png'" surface.gp
# Without a picture the window stays open.
eval "set terminal ".terminal
if (exists("picture")) set output picture
set view 60, 30
set xlabel "X"
set ylabel "Y"
set zlabel "Z"
set ticslevel 0
set palette defined (0 "#a064dc", 0.25 "#2020f0", 0.5 "#10e020", 0.75 "#f0e010", 1 "#ff1020")
set pm3d depthorder lighting primary 0.5 specular 0.3
splot data using 1:2:3 with pm3d notitle
if (!exists("picture")) pause 600
