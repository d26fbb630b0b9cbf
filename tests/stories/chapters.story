# A reader starts the program, looks around, and changes books, chapters and the version.
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Genesis"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Morning came over the valley, and the river was bright.       \r\n2   The shepherd counted his flock by the river.       \r\n3   And grace was upon the valley.       \r\nChapter 2\r\n"
# ODDITY(next-heading): the chapter ends on the heading of the next one.
click Form1.lst "Exodus"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Exodus"
get Form1.lblbook.Caption
| Form1.lblbook.Caption = "Exodus"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.scr.Max
| Form1.scr.Max = 2
get Form1.MousePointer
| Form1.MousePointer = 1
scroll Form1.scr 2
get Form1.lblc.Caption
| Form1.lblc.Caption = "2"
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "2"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A cloud stood over the road.       \r\n2   The graceful birds went before them.       \r\n"
scroll Form1.scr 3
| refused: range
@files KJV
| 1 Samuel.txt
| 1-Samuel.txt
| Exodus.txt
| Genesis.txt
| Jude.txt
| Psalms.txt
| Ruth.txt

# The same book again opens on its first chapter.
click Form1.lst "Exodus"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"

# A book of one chapter leaves the bar nowhere to go.
click Form1.lst "Jude"
get Form1.scr.Max
| Form1.scr.Max = 1
scroll Form1.scr 2
| refused: range
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A short letter to the house by the river.       \r\n"

# Another version: the book stays, the chapter falls back to 1.
click Form1.lst "Genesis"
scroll Form1.scr 3
click Form1.optn
get Form1.LBLVR.Caption
| Form1.LBLVR.Caption = "Revised Standard Version"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Genesis"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Dawn lay on the valley, and the river shone.       \r\n2   The shepherd knew each one of his sheep.       \r\nChapter 2 (Other Text)\r\n"
click Form1.optk
get Form1.LBLVR.Caption
| Form1.LBLVR.Caption = "King James Version"
get Form1.optn.Value
| Form1.optn.Value = False
