# SPDX-License-Identifier: MIT
# Holds the moves of the check (first file: LINE KIND NUMBERS..., "?" for what is not known) against
# what LinuxCNC's interpreter did (second file). `refused` names the lines that it did not take: of a
# move only the end counts, of others nothing. Says each difference, then the figures in one line; 1 where any differs.

function differ(line, text) {
  print "line " line ": " text > "/dev/stderr"
  ++differences
}

function take(line, text) {
  ++done
  at[done] = line
  step[done] = text
}

# A tool change and the end of a program stop the spindle by themselves.
function dropStop(line) {
  if (done && at[done] == line && step[done] == "off") --done
}

function compare(i, j, n, m, k, a, b, most, off) {
  n = split(asked[j], a, " ")
  m = split(step[i], b, " ")
  if (askedAt[j] != at[i]) return differ(askedAt[j], "the check has \"" asked[j] "\", the interpreter \"" step[i] "\" in line " at[i])
  if (at[i] in isRefused) m = n = 4
  else if (n != m || a[1] != b[1]) return differ(at[i], "the check has \"" asked[j] "\", the interpreter \"" step[i] "\"")
  ++count[a[1]]
  for (k = 2; k <= n; ++k) {
    if (a[k] == "?") continue
    off = a[k] - b[k]
    if (off < 0) off = -off
    if (off > farthest) farthest = off
    if (off > 0.00101) return differ(at[i], "the check has \"" asked[j] "\", the interpreter \"" step[i] "\"")
  }
}

BEGIN {
  n = split(refused, list, " ")
  for (i = 1; i <= n; ++i) isRefused[list[i]] = 1
}

FNR == NR {
  askedAt[++wanted] = $1
  asked[wanted] = substr($0, length($1) + 2)
  next
}

$2 ~ /^N[0-9]+$/ {
  line = substr($2, 2)
  gsub(/[(),]/, " ")
  if ($3 == "STRAIGHT_TRAVERSE") take(line, "rapid " $4 " " $5 " " $6)
  else if ($3 == "SET_FEED_RATE") feed = $4
  else if ($3 == "STRAIGHT_FEED") take(line, "line " $4 " " $5 " " $6 " " feed)
  else if ($3 == "ARC_FEED") take(line, ($8 < 0 ? "cw " : "ccw ") $4 " " $5 " " $9 " " feed " " $6 " " $7)
  else if ($3 == "DWELL") take(line, "dwell " $4)
  else if ($3 == "SET_SPINDLE_SPEED") take(line, "speed " $5)
  else if ($3 == "STOP_SPINDLE_TURNING") take(line, "off")
  else if ($3 == "CHANGE_TOOL") { dropStop(line); take(line, "tool " $4) }
  else if ($3 == "PROGRAM_END") { dropStop(line); take(line, "end") }
}

END {
  for (i = 1; i <= done; ++i) isSeen[at[i]] = 1
  i = 0
  for (j = 1; j <= wanted; ++j)
    if (!(askedAt[j] in isRefused) || askedAt[j] in isSeen) compare(++i, j)
  if (i != done) differ(at[done], "the check has " i " steps, the interpreter " done)
  printf "%d %d %d %d %d %d %.5f\n", count["rapid"], count["line"], count["cw"] + count["ccw"], count["tool"], count["speed"] + count["off"], count["dwell"], farthest
  exit differences > 0
}
