# A reader starts the program, looks around, and changes books, chapters and the version.
start
  lblbk "Genesis"
  rtxt: "1   Morning came over the valley, and the river was bright.       ",
    "2   The shepherd counted his flock by the river.       ", "3   And grace was upon the valley.       ", "Chapter 2"
# ODDITY(next-heading): the chapter ends on the heading of the next one.
click Form1.lst "Exodus"
  lblbk "Exodus", lblbook "Exodus", lblc "1", scr.Max 2, MousePointer 1
scroll Form1.scr 2
  lblc "2", LBLMRK(2) "2"
  rtxt "1   A cloud stood over the road.       \r\n2   The graceful birds went before them.       \r\n"
scroll Form1.scr 3 | refused: range
@changes KJV | unchanged
# The same book again opens on its first chapter. In a book of one chapter the bar cannot move.
click Form1.lst "Exodus"
  lblc "1"
click Form1.lst "Jude"
  scr.Max 1, rtxt "1   A short letter to the house by the river.       \r\n"
scroll Form1.scr 2 | refused: range
# Another version: the book stays, the chapter falls back to 1.
click Form1.lst "Genesis"; scroll Form1.scr 3; click Form1.optn
  LBLVR "Revised Standard Version", lblbk "Genesis", lblc "1"
  rtxt: "1   Dawn lay on the valley, and the river shone.       ",
    "2   The shepherd knew each one of his sheep.       ", "Chapter 2 (Other Text)"
click Form1.optk
  LBLVR "King James Version", optn.Value False

# A chapter that is not there, a number with a leading zero, and text where a number belongs.
set Form1.lblc.Caption = "99"
  rtxt "3   Grace and peace kept the house.       \r\n", scr 1
set Form1.lblc.Caption = "02"
  rtxt "1   A stranger came by the road at noon.…Chapter 3\r\n", lblc "2", scr 2
set Form1.lblc.Caption = "abc"
  rtxt "1   Morning came over the valley, and the river was bright.       \r\n"
# Lines that an interrupted load left in the scratch file come first, once.
@write KJV/temp.txt | stale
set Form1.lblc.Caption = "3"
  rtxt: "stale", "1   In the evening they lit a lamp.       ", "2   The lamp burned until morning.       ",
    "3   Grace and peace kept the house.       "
set Form1.lblc.Caption = ""; set Form1.lblc.Caption = "3"
  rtxt "1   In the evening they lit a lamp.…"

# A book without a heading, an empty one, one that ends in a heading, one heading behind another.
@write KJV/Ruth.txt | no heading | the next line
click Form1.lst "Ruth"
  rtxt "the next line\r\n"
@write KJV/Ruth.txt ""
click Form1.lst "Ruth"
  rtxt "\r\n"
@write KJV/Ruth.txt | Chapter 1 | 1   One. | Chapter 2
click Form1.lst "Ruth"; set Form1.lblc.Caption = "2"
  rtxt "Chapter 2\r\n"
@write KJV/Ruth.txt "Chapter 1\r\nChapter 2\r\n1   Taken for the first.\r\nChapter 3\r\n1   Second."
set Form1.lblc.Caption = ""; set Form1.lblc.Caption = "2"
  rtxt "1   Second.\r\n"
# A book whose file is missing: the pane keeps its text, the rest of the load runs.
click Form1.lst "Malachi"
  rtxt "1   Second.\r\n", lblbk "Malachi", LBLMRK(2) "1"
@changes KJV | unchanged

# A new position without its range: the chapter loads, the bar stays where it was.
click Form1.lst "Jude"; set Form1.lblc.Caption = ""
set Form1.lblbook.Caption = "Genesis"; set Form1.lblbk.Caption = "Genesis"; set Form1.lblc.Caption = "2"
  rtxt "1   A stranger came by the road at noon.…Chapter 3\r\n", scr 1, scr.Max 1
# Anything else that has the scratch file's name is left alone, and so is what a link points to.
@folder KJV/temp.txt; click Form1.lst "Exodus"
  rtxt "1   The people went out…", scr.Max 2
@delete KJV/temp.txt; @write note.not | mine
@link KJV/temp.txt ../note.not; click Form1.lst "Jude"
  rtxt "1   A short letter to the house by the river.       \r\n"
@show note.not | mine

# The person who prepares the data has the chapters counted; the reader's bar follows the counts.
@data empty
@write Genesis.txt | Chapter 1 | 1   a | Chapter 2 | chapter 3
click! Form1.Command12 | run-time error 53 "File not found" | end
@show bookschap.txt | "Genesis",2
@data small
@write bookschap.txt | "GENESIS",7 | "Exodus",2 | "Genesis",3
  scr.Max 3
set Form1.lblbk.Caption = "genesis"
  scr.Max 3
# A record without a count takes the name behind it, and every record from there on is out of step.
@write bookschap.txt | "Genesis" | "Exodus",2 | "Jude",1
click Form1.lst "Exodus"
  scr.Max 3
click Form1.lst "Jude"
  scr.Max 3
# A click on the book that is open reads no counts: its name is no change.
@write bookschap.txt | "Jude",9
click Form1.lst "Jude"
  scr.Max 3
# A word counts as 0, and the bar has nowhere to go; a count that is too large changes nothing; a quote that is
# never closed takes the rest of the file.
@write bookschap.txt
  | "Jude",many | "Ruth",99999 | "Exodus",2
  | "Psalms,4
  | "Genesis",3
click Form1.lst "Exodus"
  scr.Max 2
click Form1.lst "Ruth"
  scr.Max 2
click Form1.lst "Jude"
  scr.Max 0, lblc "1", rtxt "1   A short letter to the house by the river.       \r\n"
click Form1.lst "Psalms"; click Form1.lst "Genesis"
  scr.Max 0
# No counts at all: the bar keeps the range of the book before.
@delete bookschap.txt; click Form1.lst "Exodus"
  scr.Max 0, rtxt "1   The people went out…"
