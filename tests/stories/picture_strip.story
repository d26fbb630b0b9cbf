@data gallery
# Five pictures of the book at a time, numbers above, chapter and verse below.
  lblendpic "4", imgp(0) picture 2x1, lblp(5) "1", lblp(0) "1: 1", imgp(4) picture 6x1, lblp(9) "5", lblp(4) "2: 3"

# The first page is where the strip begins.
click Form1.SSCommand4
  lblendpic "4"

# The next page shows two pictures and three fillers; behind it there is none.
click Form1.SSCommand3
  lblendpic "9", lblp(5) "6", imgp(1) picture 8x1, lblp(1) "3: 1", imgp(2) picture 1x1, lblp(2) "end", lblp(7) "end"
click Form1.SSCommand3
  lblendpic "9"

# A click picks a picture: it is marked, its record is in hand, and the viewer opens on it.
  picp hidden
click Form1.imgp(1)
  picp shown, lblp(1).ForeColor 255, lblp(0).ForeColor -2147483630, selfile(0) "road", selfile(1) "Genesis 3: 1"
  selfile(2) "PICTURES BY: A. Painter", picnm 6, LBLPICP "road", lblvs "Genesis 3: 1", pick picture 8x1
click Form1.imgp(0)
  lblp(0).ForeColor 255, lblp(1).ForeColor -2147483630, LBLPICP "ark"

# ODDITY(filler-opens-viewer): a click on a filler empties the record in hand and leaves the viewer as it was.
click Form1.Command37
  picp hidden
click Form1.imgp(3)
  selfile(0) "", lblp(3).ForeColor 255, picnm 5, LBLPICP "ark", picp shown

# A page turn takes the mark away, keeps the record in hand, and moves the viewer nowhere.
click Form1.imgp(0)
click Form1.SSCommand4
  lblendpic "4", lblp(0).ForeColor -2147483630, selfile(0) "ark", LBLPICP "ark"

# The first picture of all opens also where the viewer stands on it already.
click Form1.imgp(0)
  LBLPICP "river", pick picture 2x1
@restart
  pick none
click Form1.imgp(0)
  pick picture 2x1, lblvs "Genesis 1: 1"

# A change of chapter moves the viewer and not the strip.
click Form1.SSCommand3
scroll Form1.scr 2
  LBLPICP "tent", lblendpic "9"
# A change of book goes back to the first page.
click Form1.lst "Exodus"
  lblendpic "4"

# ODDITY(page-of-fillers): a book of just five pictures has a second page, all of fillers; from there it goes
# back.
click Form1.SSCommand3
  lblendpic "9", lblp(5) "end", imgp(0) picture 1x1
click Form1.SSCommand3
  lblendpic "9"
click Form1.SSCommand4
  lblp(5) "1"

# A book without pictures: five fillers, and neither button leads anywhere.
click Form1.lst "Jude"
  lblp(0) "end", lblp(9) "end", imgp(4) picture 1x1
click Form1.SSCommand3
click Form1.SSCommand4
  lblendpic "4", lblp(0) "end"
