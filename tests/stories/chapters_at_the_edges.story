# Chapters that are not there, books that are odd, and what a crash left behind.
set Form1.lblc.Caption = "99"
get Form1.rtxt.Text
| Form1.rtxt.Text = "3   Grace and peace kept the house.       \r\n"
get Form1.scr.Value
| Form1.scr.Value = 1
set Form1.lblc.Caption = "02"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A stranger came by the road at noon.       \r\n2   He asked for water, and it was given him.       \r\nChapter 3\r\n"
get Form1.lblc.Caption
| Form1.lblc.Caption = "2"
get Form1.scr.Value
| Form1.scr.Value = 2

# Lines that a broken run left in the scratch file stand in front, once.
@write KJV/temp.txt "stale\r\n"
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "3"
get Form1.rtxt.Text
| Form1.rtxt.Text = "stale\r\n1   In the evening they lit a lamp.       \r\n2   The lamp burned until morning.       \r\n3   Grace and peace kept the house.       \r\n"
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "3"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   In the evening they lit a lamp.       \r\n2   The lamp burned until morning.       \r\n3   Grace and peace kept the house.       \r\n"

# Text where a number belongs: nothing is found, the line behind the first heading stands alone.
set Form1.lblc.Caption = "abc"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Morning came over the valley, and the river was bright.       \r\n"

# A book without a heading, an empty one, one that ends in a heading, one heading behind another.
@write KJV/Ruth.txt "no heading\r\nlast line\r\n"
click Form1.lst "Ruth"
get Form1.rtxt.Text
| Form1.rtxt.Text = "last line\r\n"
@write KJV/Ruth.txt ""
click Form1.lst "Ruth"
get Form1.rtxt.Text
| Form1.rtxt.Text = "\r\n"
@write KJV/Ruth.txt "Chapter 1\r\n1   One.\r\nChapter 2\r\n"
click Form1.lst "Ruth"
set Form1.lblc.Caption = "2"
get Form1.rtxt.Text
| Form1.rtxt.Text = "Chapter 2\r\n"
@write KJV/Ruth.txt "Chapter 1\r\nChapter 2\r\n1   Taken for the first.\r\nChapter 3\r\n1   Second."
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "2"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Second.\r\n"

# A book whose file is missing: the pane keeps its text, the rest of the load runs.
click Form1.lst "Malachi"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Second.\r\n"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Malachi"
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "1"
@files KJV
| 1 Samuel.txt
| 1-Samuel.txt
| Exodus.txt
| Genesis.txt
| Jude.txt
| Psalms.txt
| Ruth.txt

# A new position without its range: the chapter loads, the bar stays where it was.
click Form1.lst "Jude"
set Form1.lblc.Caption = ""
set Form1.lblbook.Caption = "Genesis"
set Form1.lblbk.Caption = "Genesis"
set Form1.lblc.Caption = "2"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A stranger came by the road at noon.       \r\n2   He asked for water, and it was given him.       \r\nChapter 3\r\n"
get Form1.scr.Value
| Form1.scr.Value = 1
get Form1.scr.Max
| Form1.scr.Max = 1

# A scratch file that cannot be written: the pane keeps its text, the rest of the load runs.
@folder KJV/temp.txt
click Form1.lst "Exodus"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A stranger came by the road at noon.       \r\n2   He asked for water, and it was given him.       \r\nChapter 3\r\n"
get Form1.scr.Max
| Form1.scr.Max = 2
@delete KJV/temp.txt
click Form1.lst "Jude"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A short letter to the house by the river.       \r\n"
