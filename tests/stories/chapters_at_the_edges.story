# Chapters that are not there, books that are odd, and what a crash left behind.
set Form1.lblc.Caption = "99"
  rtxt "3   Grace and peace kept the house.       \r\n", scr 1
set Form1.lblc.Caption = "02"
  rtxt: "1   A stranger came by the road at noon.       ", "2   He asked for water, and it was given him.       ",
    "Chapter 3"
  lblc "2", scr 2

# Lines that a broken run left in the scratch file stand in front, once.
@write KJV/temp.txt | stale
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "3"
  rtxt: "stale", "1   In the evening they lit a lamp.       ", "2   The lamp burned until morning.       ",
    "3   Grace and peace kept the house.       "
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "3"
  rtxt: "1   In the evening they lit a lamp.       ", "2   The lamp burned until morning.       ",
    "3   Grace and peace kept the house.       "

# Text where a number belongs: nothing is found, the line behind the first heading stands alone.
set Form1.lblc.Caption = "abc"
  rtxt "1   Morning came over the valley, and the river was bright.       \r\n"

# A book without a heading, an empty one, one that ends in a heading, one heading behind another.
@write KJV/Ruth.txt | no heading | last line
click Form1.lst "Ruth"
  rtxt "last line\r\n"
@write KJV/Ruth.txt ""
click Form1.lst "Ruth"
  rtxt "\r\n"
@write KJV/Ruth.txt | Chapter 1 | 1   One. | Chapter 2
click Form1.lst "Ruth"
set Form1.lblc.Caption = "2"
  rtxt "Chapter 2\r\n"
@write KJV/Ruth.txt "Chapter 1\r\nChapter 2\r\n1   Taken for the first.\r\nChapter 3\r\n1   Second."
set Form1.lblc.Caption = ""
set Form1.lblc.Caption = "2"
  rtxt "1   Second.\r\n"

# A book whose file is missing: the pane keeps its text, the rest of the load runs.
click Form1.lst "Malachi"
  rtxt "1   Second.\r\n", lblbk "Malachi", LBLMRK(2) "1"
@files KJV | 1 Samuel.txt | 1-Samuel.txt | Exodus.txt | Genesis.txt | Jude.txt | Psalms.txt | Ruth.txt

# A new position without its range: the chapter loads, the bar stays where it was.
click Form1.lst "Jude"
set Form1.lblc.Caption = ""
set Form1.lblbook.Caption = "Genesis"
set Form1.lblbk.Caption = "Genesis"
set Form1.lblc.Caption = "2"
  rtxt: "1   A stranger came by the road at noon.       ", "2   He asked for water, and it was given him.       ",
    "Chapter 3"
  scr 1, scr.Max 1

# A scratch file that cannot be written: the pane keeps its text, the rest of the load runs.
@folder KJV/temp.txt
click Form1.lst "Exodus"
  rtxt: "1   A stranger came by the road at noon.       ", "2   He asked for water, and it was given him.       ",
    "Chapter 3"
  scr.Max 2
@delete KJV/temp.txt
click Form1.lst "Jude"
  rtxt "1   A short letter to the house by the river.       \r\n"
