# An evening with children: stories from the menu, and where they lead.
@write KJV/Luke.txt
  | Chapter 1 | 1   Two old people by the river. | 2   They wait. | Chapter 2 | 1   A child in the night.
@write KJV/John.txt | Chapter 1 | 1   A man by the road. | Chapter 2 | 1   A feast on the third day.
@append bookschap.txt | "Luke",2 | "1-Samuel",2

# ODDITY(story-keeps-range): the chapter loads, the bar keeps the range of the book before.
click Form1.lst "Jude"; click Form1.ss3
  lblbk "Genesis", lblbook "Genesis", lblc "2", rtxt "1   A stranger came by…Chapter 3\r\n", scr.Max 1, scr 1

# Choosing the same story again reads the book again.
@write KJV/Genesis.txt | Chapter 1 | 1   One. | Chapter 2 | 1   Told again.
click Form1.ss3
  rtxt "1   Told again.\r\n"

# David, in either version; the file bears the hyphen. A chapter that the file does not have ends on its last
# line.
click Form1.aaa3
  lblbk "1-Samuel", lblc "16", rtxt "1   He rose and said, Here am I.       \r\n"
click Form1.optn
  rtxt "1   A boy slept by the lamp.       \r\nChapter 2 (Other Text)\r\n"
click Form1.sss3
  lblbook "1-Samuel", lblc "17", LBLVR "Revised Standard Version"
click Form1.optk

# ODDITY(peter-at-samuel)
click Form1.ddd1
  lblbk "1-Samuel", lblc "16"

# ODDITY(story-first-chapter): the birth of a child is chosen, and chapter 1 comes up; the bar follows.
click Form1.lst "Exodus"; click Form1.gg5
  lblbk "Luke", lblc "1", rtxt "1   Two old people by the river.\r\n2   They wait.\r\nChapter 2\r\n", scr.Max 2
click Form1.gg1
  lblbk "John", lblc "1", rtxt "1   A man by the road.\r\nChapter 2\r\n"

# From a book of one chapter, and from the book itself, it is chapter 1 all the same.
click Form1.lst "Jude"; click Form1.gg5
  lblc "1", rtxt "1   Two old people by the river.\r\n2   They wait.\r\nChapter 2\r\n"
scroll Form1.scr 2; click Form1.gg5
  lblc "1"

# With the search open the bar is not taken back: the old book's chapter 2 stays under the new name.
click Form1.lst "Exodus"; set Form1.frms.Visible = True; click Form1.gg5
  lblbk "Luke", lblc "2", rtxt "1   A cloud stood over the road.…"
set Form1.frms.Visible = False

# Where the book is missing the text stays, and nothing is reported.
click Form1.aaa5
  lblbk "2-Samuel", rtxt "1   A cloud stood over the road.…"
