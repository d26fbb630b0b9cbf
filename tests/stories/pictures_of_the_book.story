@data gallery
# A reader goes through Genesis and sees the picture follow the chapter.
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
  lstmc(1): "Genesis 1: 1", "Genesis 1: 2", "Genesis 1: 1", "Genesis 2: 1", "Genesis 2: 3", "Genesis 3: 2",
    "Genesis 3: 1"
  lstmc(2).List(5) "PICTURES BY: B. Carver", lbltm "3", picnm.Max 6
@show tmppics2.dat
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | "ark    ","Genesis 3: 2","PICTURES BY: B. Carver"
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "tent","Genesis 2: 1","PICTURES BY: B. Carver"
  | "olive","Genesis 2: 3","PICTURES BY: A. Painter"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
scroll Form1.scr 2
  picnm 3, LBLPICP "tent", lblvs "Genesis 2: 1", pick picture 5x1

# A chapter without a picture leaves the picture of the chapter before.
scroll Form1.scr 4
  lblc "4", picnm 3, LBLPICP "tent", pick picture 5x1

# Chapters are compared as numbers.
set Form1.lblc.Caption = "03"
  picnm 5, pick picture 7x1

# ODDITY(blank-labels-on-book-change): another book empties the viewer's labels and leaves its picture, until a
# chapter with a picture of its own comes.
set Form1.lblbook.Caption = ""
set Form1.lblbk.Caption = "Exodus"
  LBLPICP "", lblvs "", pick picture 7x1, picnm 0
click Form1.lst "Exodus"
scroll Form1.scr 2
  LBLPICP "river", pick picture 2x1
  lstmc(0): "cloud", "birds", "river", "staff", "well"

# A book without pictures.
click Form1.lst "Jude"
  lstmc(0) empty, lbltm "0", picnm.Max -1
@show tmppics2.dat | empty

# A picture for two verses stands in each of its books.
click Form1.lst "Genesis"
  lstmc(0).List(0) "river", lstmc(1).List(0) "Genesis 1: 1"

# The other version has the same pictures.
click Form1.optn
  lstmc(0).ListCount 7, picnm 0

# ODDITY(blank-behind-the-book): a verse found in the whole text brings its book with a blank behind the name, which
# leaves no chapter to be read in its places; a click on the book in the list has them back.
click Form1.optk
click Form1.Command16
click Form1.op1
type Form1.txts "cloud"
click Form1.Command22
run | ran 66 ticks
click Form1.lsts "Exodus 1 1"
  lblbk "Exodus ", lstmc(0).ListCount 0, lblp(0) "end"
click Form1.Command20
click Form1.lst "Exodus"
  lstmc(0).ListCount 5
