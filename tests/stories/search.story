# A reader looks for a word in the open book. A term also finds the words that begin with it.
click Form1.lst "Exodus"; click Form1.Command16
  frms shown, Command3 disabled, SSOption1.Value True, cmdadd disabled
type Form1.txts "GRACE"; click Form1.Command22 | beep | beep
  lsts: "Exodus 2 2"
  text5 "1", Command22 disabled, Command22.MousePointer 0, cmdadd enabled, pbar 2
# A term has to begin a word, not to end one; a verse's first three characters are not searched.
type Form1.txts "rossed"; key Form1.txts 13 | beep | beep
  lsts empty
type Form1.txts "1"; key Form1.txts 13 | beep | beep
  lsts empty
# An emptied box changes nothing; two terms stand in one verse, in either order.
type Form1.txts ""
  Command22 disabled
type Form1.txts2 "people"; type Form1.txts "lamps"; click Form1.Command22 | beep | beep
type Form1.txts ""; click Form1.Command22 | refused: disabled
  lsts: "Exodus 1 1"
# A term of blanks, one with control characters, one longer than any line.
type Form1.txts2 ""; type Form1.txts "  "; click Form1.Command22 | beep | beep
  lsts.ListCount 4
type Form1.txts "a\x01\r\nb"; click Form1.Command22 | beep | beep
  lsts empty
type Form1.txts "a term that is longer than any of the lines in the whole of this small book of Exodus, by a good deal"
click Form1.Command22 | beep | beep
click Form1.lsts
  lsts empty, lblc "1"

# Headings: in lower case, "song" cut short; an empty one leaves a book without a name, whose matches
# count and are not listed.
@write KJV/Ruth.txt "Song of Ruth\r\nChapter 1\r\n1   grain\r\n\r\n2   grain\r\nRUTH\r\n1   some grain\r\n1-Ruth\r\n3   grain"
click Form1.lst "Ruth"; type Form1.txts "grain"; click Form1.Command22 | beep | beep
  lsts: "song 1 1", "ruth 0 1", "1-ruth 0 1"
  text5 "4"
# Closing lands on chapter 1. ODDITY(search-closes-on-chapter-1)
click Form1.lst "Exodus"; scroll Form1.scr 2; click Form1.Command20
  lblc "1", frms hidden, Command16 enabled, lsts empty
# The open book's file is missing: nothing traps it.
click Form1.cc3
  Command16 enabled
@delete KJV/Exodus.txt
type Form1.txts "grace"; click Form1.Command22 | run-time error 53 "File not found" | end

# A reader looks through the whole text. Only whole words are found here, and the books have capital letters.
@data small; click Form1.Command16; click Form1.op1
  frmscale hidden
type Form1.txts "grace"; click Form1.Command22
  frmscale shown, text7 "Genesis", pbar.Max 66
tick
  text7 "Exodus", pbar 1
  lsts: "Genesis 1 3", "Genesis 3 3"
run | ran 65 ticks
  lsts: "Genesis 1 3", "Genesis 3 3", "Psalms 3 1"
  text5 "3", frmscale hidden, Command22 disabled, tmrb disabled
# The bar and the pane follow a click on what was found, the terms in blue; a capital or none, the file is
# found. ODDITY(blank-behind-the-book)
type Form1.txts2 "lamp"; click Form1.Command22; run | ran 66 ticks
  lsts: "Psalms 3 1"
click Form1.lsts "Psalms 3 1"
  lblbook "Psalms", lblbk "Psalms ", lblc "3", scr.Max 3, scr 3, rtxt "1   A song of the lamp, and of grace.       \r\n"
set Form1.rtxt.SelStart = 18
  rtxt.SelColor 16711680
set Form1.rtxt.SelStart = 31
  rtxt.SelColor 16711680
set Form1.rtxt.SelStart = 17
  rtxt.SelColor -2147483640, LBLCC "Psalms 3 1"
# A click that selects nothing repeats the last jump.
click Form1.lst "Exodus"; type Form1.txts "nothing"; click Form1.lsts
  lblbook "Psalms"

# A click on a result is served between two books; so is Cancel. What was found stays.
type Form1.txts2 ""; type Form1.txts "river"; click Form1.Command22; tick
tick
  lsts: "Genesis 1 1", "Genesis 1 2", "Exodus 1 2"
click Form1.lsts 0
  lblbook "Genesis"
click Form1.Command25; run | ran 0 ticks
  lsts.ListCount 3, Command22 enabled, frmscale hidden, Command22.MousePointer 0
# A new search without an edit goes on counting.
click Form1.Command22; run | ran 66 ticks
  lsts.ListCount 5, text5 "8"
# An edit during a scan clears the list and hides the progress, and the scan goes on with the new term.
type Form1.txts "lamp"; click Form1.Command22; tick; type Form1.txts "morning"
  frmscale hidden, lsts empty, tmrb enabled
run | ran 65 ticks
  lsts: "Exodus 1 2", "Psalms 1 2"

# The word "z" ends another word, a letter from a to y makes it a longer one; the first candidate decides.
@write KJV/Ruth.txt
  | Chapter 1 | 1   the gracez of it        | 2   the graceb and grace        | 3   end with grace
@append KJV/Ruth.txt "4   more of grace,       "
type Form1.txts "grace"; click Form1.Command22; run | ran 66 ticks
  lsts: "Genesis 1 3", "Genesis 3 3", "Ruth 1 1", "Ruth 1 4", "Psalms 3 1"
# With the second version set, its files; closing stops a scan that is under way.
click Form1.optn; type Form1.txts "lamp"; click Form1.Command22; run | ran 66 ticks
  lsts: "Genesis 3 1"
type Form1.txts "river"; click Form1.Command22; tick; click Form1.Command20
  tmrb disabled
run | ran 0 ticks
