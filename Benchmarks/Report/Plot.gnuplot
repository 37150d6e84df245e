# Draws cost against size: gnuplot -e "data='..'; output='..'; label='..'; titles='..|..'" Plot.gnuplot
# The data has a block of lines "size nanoseconds" for each title; the titles are separated by bars.

count(text) = strlen(text) == 0 ? 0 : (strstrt(text, '|') == 0 ? 1 : 1 + count(text[strstrt(text, '|') + 1:*]))
first(text) = strstrt(text, '|') == 0 ? text : text[1:strstrt(text, '|') - 1]
nth(text, n) = n == 1 ? first(text) : nth(text[strstrt(text, '|') + 1:*], n - 1)

set terminal svg size 860,420 font 'sans,12' background '#ffffff'
set output output
set logscale xy
set format y '%.0f'
set format x '%.0f'
set xlabel label
set ylabel 'nanoseconds per operation'
set grid
set key outside right top
plot for [i = 1:count(titles)] data index i - 1 using 1:2 with linespoints linewidth 2 title nth(titles, i)
