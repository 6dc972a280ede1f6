# SPDX-License-Identifier: MIT
# Turns a written program into one that LinuxCNC's interpreter takes. Block numbers become numbers of
# lines; the opening lines, the header and "%" go. What the machine does stays what it was.

BEGIN { print "%\nG21" } # mm
END { print "%" }

{ sub(/\r$/, "") }

/^N[0-9]+ / {
  sub(/^N[0-9]+ /, "")
  if (/^G58 /) next # a shift by nothing
  sub(/ D[0-9]+/, "") # the tool's offset number, which is 0 in the table
  if (/^T/) sub(/^T[0-9]+/, "& M6")
  sub(/ M0$/, "") # behind a tool: it is changed by hand
  sub(/^G4 X/, "G4 P")
  if (/^G4 P[0-9]+$/) $2 = "P" substr($2, 2) / 1000 # ms
  print "N" NR " " $0
}
