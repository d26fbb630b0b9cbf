# A reader looks for a word in the open book. A term also finds the words that begin with it.
click Form1.lst "Exodus"
click Form1.Command16
  frms shown, Command3 disabled, SSOption1.Value True, cmdadd disabled
type Form1.txts "GRACE"
click Form1.Command22 | beep | beep
  lsts: "Exodus 2 2"
  text5 "1", Command22 disabled, Command22.MousePointer 0, cmdadd enabled, pbar 2

# No right border, but a left one; nothing of a verse's first three characters.
type Form1.txts "rossed"
key Form1.txts 13 | beep | beep
  lsts.ListCount 0
type Form1.txts "1"
key Form1.txts 13 | beep | beep
  lsts.ListCount 0

# An emptied box changes nothing; two terms stand in one verse, in either order.
type Form1.txts ""
  Command22 disabled
type Form1.txts2 "people"
type Form1.txts "lamps"
click Form1.Command22 | beep | beep
  lsts: "Exodus 1 1"
type Form1.txts ""
click Form1.Command22 | refused: disabled
  lsts: "Exodus 1 1"

# Blanks alone, control characters, a term longer than any line.
type Form1.txts2 ""
type Form1.txts "  "
click Form1.Command22 | beep | beep
  lsts.ListCount 4
type Form1.txts "a\x01\r\nb"
click Form1.Command22 | beep | beep
  lsts.ListCount 0
type Form1.txts "a term that is longer than any of the lines in the whole of this small book of Exodus, by a good deal"
click Form1.Command22 | beep | beep
  lsts.ListCount 0
click Form1.lsts
  lblc "1"

# Headings: in lower case, "song" cut short; an empty one leaves a book without a name, whose matches
# count and are not listed.
@write KJV/Ruth.txt "Song of Ruth\r\nChapter 1\r\n1   grain\r\n\r\n2   grain\r\nRUTH\r\n1   some grain\r\n1-Ruth\r\n3   grain"
click Form1.lst "Ruth"
type Form1.txts "grain"
click Form1.Command22 | beep | beep
  lsts: "song 1 1", "ruth 0 1", "1-ruth 0 1"
  text5 "4"

# Closing lands on chapter 1. ODDITY(search-closes-on-chapter-1)
click Form1.lst "Exodus"
scroll Form1.scr 2
click Form1.Command20
  lblc "1", frms hidden, Command16 enabled, lsts.ListCount 0

# The open book's file is missing: nothing traps it.
click Form1.cc3
  Command16 enabled
@delete KJV/Exodus.txt
type Form1.txts "grace"
click Form1.Command22 | run-time error 53 "File not found" | end
