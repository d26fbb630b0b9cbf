@data real
# A reader colours a picture of the gallery, and comes back to what came of it.
click Form1.imgp(0)
  LBLPICP "earth", pick picture 640x480
click Form1.Command32
  Form4.picbox picture 640x480, IMGSPB(0) picture 640x480

# A colour and the thickest brush; a stroke of three dots into the white corner. What the swatch shows is what it
# paints there.
mousedown Form4.clrboxs(2) 1 0 5 5
  Form4.clr2.BackColor 42495
click Form4.picpbs(4)
mousedown Form4.picbox 1 0 40 40
mousemove Form4.picbox 1 0 50 44
mousemove Form4.picbox 1 0 100 44
  Form4.picbox.Point(40,40) 42495, picbox.Point(50,52) 42495
# Between two movements of a fast hand there is nothing.
  Form4.picbox.Point(75,44) 16777215, picbox.Point(100,44) 42495

# Another colour over it: that is what goes wrong.
mousedown Form4.clrboxs(14) 1 0 5 5
mousedown Form4.picbox 1 0 40 40
  Form4.picbox.Point(40,40) 9336

# A closer look, twice; the canvas is then larger than what it is seen through, and the arrows move it.
click Form4.cmdm(0)
  Form4.txt5 "1", picbox.Width 19200, picbox.Point(80,80) 9336
click Form4.cmdm(0)
  Form4.picbox.Width 38400, picbox.Left -14992.5
click Form4.imgs(0)
  Form4.picbox.Left -12992.5
click Form4.imgs(3)
  Form4.picbox.Point(160,160) 9336

# Back to the newest save, from before the second colour, in its own size.
click Form4.IMGSPB(4)
  Form4.picbox picture 640x480, picbox.Left -592.5, picbox.Point(40,40) 42495, picbox.Point(5,5) 16777215
# The thinnest brush, in the colour that was taken last; a dot beside the stroke.
click Form4.picpbs(0)
mousedown Form4.picbox 1 0 120 40
  Form4.picbox.Point(120,40) 12467320, picbox.Point(124,40) 16777215

# It is saved under a name of its own, and stands on the strip behind the other pictures of its chapter.
click Form4.Command2 | input "Save Picture as" "Save Picture" "earth" -> "my earth"
click Form4.Command1
  lblp(0) "1: 1"
click Form1.SSCommand3
  lblp(7) "8", lblp(2) "1: 1"
click Form1.imgp(2)
  LBLPICP "my earth", lblvs "Genesis 1: 1", selfile(2) "PICTURES BY: Architetto Francesco Rollandin"

# Opened again it is what was painted.
click Form1.Command32
  Form4.picbox picture 640x480, picbox.Point(40,40) 42495, picbox.Point(50,52) 42495, picbox.Point(75,44) 16777215
  Form4.picbox.Point(100,44) 42495, picbox.Point(120,40) 12467320, picbox.Point(124,40) 16777215
  Form4.picbox.Point(5,5) 16777215
click Form4.Command1

# Also after the program's next start.
@restart
  lstmc(0): "earth", "creation1", "creation2", "creation3", "creation4", "creation5", "creation6", "my earth",
    "creation7", "fruit tree", "rain", "raven", "dove", "olive branch", "rainbow", "tower", "tent", "bread and wine",
    "ram", "money", "camel", "cow", "rings", "gold chain", "wolf"
click Form1.SSCommand3
click Form1.imgp(2)
click Form1.Command32
  Form4.picbox.Point(40,40) 42495, picbox.Point(120,40) 12467320
