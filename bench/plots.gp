# Plots what the benchmarks have measured: from build/bench/times.tsv into docs/.

set datafile separator '\t'
set logscale x
set grid
set style data linespoints
set style line 1 lc rgb '#c0392b' lw 3 pt 7 ps 0.7
set style line 2 lc rgb '#2471a3' lw 1.5 pt 5 ps 0.6
set style line 3 lc rgb '#7fb3d5' lw 1.5 pt 4 ps 0.6
set style line 4 lc rgb '#229954' lw 1.5 pt 9 ps 0.7
set style line 5 lc rgb '#7d6608' lw 1.5 pt 11 ps 0.7
set style line 6 lc rgb '#7f8c8d' lw 1.5 pt 13 ps 0.7

# The lines of times.tsv for one contender, up to a size.
times(task, kind, contender, most) = sprintf( \
    "< awk -F '\\t' '$1 == \"%s\" && $2 == \"%s\" && $4 == \"%s\" && $3 <= %g' build/bench/times.tsv | sort -n -t '\t' -k 3", \
    task, kind, contender, most)

# Policies are on the left, catalogues on the right, and the key is further right.
left(kind) = kind eq 'policy' ? 0.06 : 0.48
place = 'set lmargin at screen left(kind); set rmargin at screen left(kind) + 0.34; \
  if (kind eq "policy") { unset key } else { set key at screen 0.845, graph 1 left top samplen 2 Left reverse }'

# ---- throughput by size -------------------------------------------------------------------------

set terminal svg size 1100, 1000 font 'sans-serif,14' background 'white' dynamic
set output 'docs/throughput.svg'
set multiplot layout 3, 2 title 'Throughput by the size of the document, in MB/s' font ',18'
set xrange [3e3:1.4e7]
set yrange [0:*]
set xtics ('4 KB' 4e3, '40 KB' 4e4, '400 KB' 4e5, '4 MB' 4e6, '' 1e7)
rate(task, kind, contender) = times(task, kind, contender, 1e7)

do for [kind in 'policy catalogue'] {
  eval place
  set title 'walk, '.kind
  plot rate('walk', kind, 'tolva') u 3:($3*1e-6/$5) t 'tolva' ls 1, \
       rate('walk', kind, 'pugixml') u 3:($3*1e-6/$5) t 'pugixml' ls 2, \
       rate('walk', kind, 'rapidxml') u 3:($3*1e-6/$5) t 'rapidxml' ls 4, \
       rate('walk', kind, 'expat') u 3:($3*1e-6/$5) t 'expat' ls 5, \
       rate('walk', kind, 'libxml2') u 3:($3*1e-6/$5) t 'libxml2' ls 6
}
do for [kind in 'policy catalogue'] {
  eval place
  set title 'typed read, '.kind
  plot rate('read', kind, 'tolva') u 3:($3*1e-6/$5) t 'tolva' ls 1, \
       rate('read', kind, 'pugixml') u 3:($3*1e-6/$5) t 'pugixml' ls 2, \
       rate('read', kind, 'pugixml-tuned') u 3:($3*1e-6/$5) t 'pugixml, tuned' ls 3, \
       rate('read', kind, 'rapidxml') u 3:($3*1e-6/$5) t 'rapidxml, tuned' ls 4, \
       rate('read', kind, 'expat') u 3:($3*1e-6/$5) t 'expat' ls 5
}
do for [kind in 'policy catalogue'] {
  eval place
  set title 'typed write, '.kind
  plot rate('write', kind, 'tolva') u 3:($3*1e-6/$5) t 'tolva' ls 1, \
       rate('write', kind, 'pugixml') u 3:($3*1e-6/$5) t 'pugixml' ls 2, \
       rate('write', kind, 'pugixml-saving') u 3:($3*1e-6/$5) t 'pugixml, its tree' ls 3, \
       rate('write', kind, 'libxml2') u 3:($3*1e-6/$5) t 'libxml2' ls 6
}
unset multiplot

# ---- time against size --------------------------------------------------------------------------

set terminal svg size 1100, 480 font 'sans-serif,14' background 'white' dynamic
set output 'docs/time.svg'
set multiplot layout 1, 2 title 'Time by the size of the document' font ',18'
set logscale y
set xrange [3e3:1.5e8]
set yrange [5e-7:2]
set xtics ('4 KB' 4e3, '40 KB' 4e4, '400 KB' 4e5, '4 MB' 4e6, '' 1e7, '100 MB' 1e8)
set ytics ('1 µs' 1e-6, '10 µs' 1e-5, '100 µs' 1e-4, '1 ms' 1e-3, '10 ms' 1e-2, '100 ms' 1e-1, \
           '1 s' 1)

do for [kind in 'policy catalogue'] {
  eval place
  set title kind
  plot times('read', kind, 'pugixml', 1e8) u 3:5 t 'read, pugixml' ls 2, \
       times('read', kind, 'tolva', 1e8) u 3:5 t 'read' ls 1, \
       times('write', kind, 'tolva', 1e8) u 3:5 t 'write' ls 4, \
       times('walk', kind, 'tolva', 1e8) u 3:5 t 'walk' ls 6
}
unset multiplot
