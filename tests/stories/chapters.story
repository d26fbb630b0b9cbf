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
@files KJV | 1 Samuel.txt | 1-Samuel.txt | Exodus.txt | Genesis.txt | Jude.txt | Psalms.txt | Ruth.txt

# The same book again opens on its first chapter.
click Form1.lst "Exodus"
  lblc "1"

# A book of one chapter leaves the bar nowhere to go.
click Form1.lst "Jude"
  scr.Max 1
scroll Form1.scr 2 | refused: range
  rtxt "1   A short letter to the house by the river.       \r\n"

# Another version: the book stays, the chapter falls back to 1.
click Form1.lst "Genesis"
scroll Form1.scr 3
click Form1.optn
  LBLVR "Revised Standard Version", lblbk "Genesis", lblc "1"
  rtxt: "1   Dawn lay on the valley, and the river shone.       ",
    "2   The shepherd knew each one of his sheep.       ", "Chapter 2 (Other Text)"
click Form1.optk
  LBLVR "King James Version", optn.Value False
