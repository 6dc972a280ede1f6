# Makes of CHANGELOG.md, whose versions are "## NUMBER (YYYY-MM-DD)" and whose entries begin with "- ",
# what other readers want. -v form=debian: the changelog of a package (with -v maintainer="NAME <MAIL>");
# form=appstream: <release> elements; form=version: the newest version alone.

function endVersion() {
  endEntry()
  if (version == "") return
  if (form == "debian") {
    command = "LC_ALL=C date -u -R -d " date
    command | getline stamp
    close(command)
    printf "\n -- %s  %s\n", maintainer, stamp
  } else if (form == "appstream")
    print "        </ul>\n      </description>\n    </release>"
}

function endEntry() {
  if (entry == "") return
  if (form == "debian")
    printWrapped("  * ", entry)
  else if (form == "appstream") {
    gsub(/&/, "\\&amp;", entry)
    gsub(/</, "\\&lt;", entry)
    print "          <li>" entry "</li>"
  }
  entry = ""
}

# In lines of at most 80 letters, set in below the first word.
function printWrapped(start, text, words, count, i, line) {
  count = split(text, words, " ")
  line = start words[1]
  for (i = 2; i <= count; i++)
    if (length(line) + 1 + length(words[i]) <= 80)
      line = line " " words[i]
    else {
      print line
      line = "    " words[i]
    }
  print line
}

/^## / {
  endVersion()
  if (version != "" && form == "debian") print ""
  version = $2
  date = substr($3, 2, 10)
  if (form == "version") { print version; version = ""; exit }
  if (form == "debian")
    printf "torvik (%s) stable; urgency=medium\n\n", version
  else
    printf "    <release version=\"%s\" date=\"%s\">\n      <description>\n        <ul>\n", version, date
  next
}

/^- / { endEntry(); entry = substr($0, 3); next }
/^  / { entry = entry " " substr($0, 3) }
END { endVersion() }
