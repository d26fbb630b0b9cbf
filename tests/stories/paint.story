@data gallery
# A reader paints on a picture of the gallery: colours, brushes, zoom, the states that were kept.
@copy picend.jpg cdx1.ico; @copy picend.jpg cdx2.ico; @copy picend.jpg cdx5.ico
@write colors.dat | "16776960",255 | "X",65280 | "not a number",16711680
click Form1.imgp(0)
  pick picture 2x1
click Form1.Command32
  Form4 shown, Caption "paint", picbox picture 2x1, picbox.Left 4192.5, picbox.Top 4200, IMGSPB(0) picture 2x1
# The first pen is a near black under the first swatch's colour. ODDITY(first-pen) ODDITY(pointer-of-another-brush)
  Form4.clr1.BackColor 3, clr2.BackColor 255, mde(0) "15", picbox.MouseIcon picture 1x1
# Swatches as the file has them; those it does not name stay as they are.
  Form4.clrboxs(1) "X", clrbox(1).BackColor 65280, clrbox(3).BackColor 255

# The blank page, enlarged to paint on.
@copy picend.jpg newpic.jpg; click Form4.Command5
  Form4.picbox picture 1x1
set Form4.picbox.Width = 600; set Form4.picbox.Height = 600
  Form4.picbox.Point(20,20) 16777215, picbox.Point(-1,0) -1
set Form4.picbox.DrawWidth = 32768 | error: run-time error 380 "Invalid property value"
# Before a swatch or a brush is clicked, a stroke is seen but not part of the picture. ODDITY(first-strokes-fade)
mousedown Form4.picbox 1 0 20 20
  Form4.picbox.Point(20,20) 16777215
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.clr1.BackColor 16776960, clr2.BackColor 255, picbox.AutoRedraw True
mousedown Form4.picbox 1 0 20 20
  Form4.picbox.Point(20,20) 255, picbox.Point(20,13) 255, picbox.Point(20,12) 16777215
# Between two movements of a quick stroke nothing is painted; without a pressed button there is no stroke.
mousemove Form4.picbox 0 0 35 35
  Form4.picbox.Point(35,35) 16777215
mousemove Form4.picbox 2 0 35 35
  Form4.picbox.Point(35,35) 255, picbox.Point(27,28) 16777215, xpos "0"
# A second colour over the first: what remains is what both let through.
set Form4.clrboxs(1).Caption = "16711935"; mousedown Form4.clrboxs(1) 1 0 5 5
mousedown Form4.picbox 1 0 20 20
  Form4.picbox.Point(20,20) 0

# A brush, shown whole in the box of the chosen one; the width takes effect at the next press. A setting that is no
# number leaves the old one.
click Form4.picpbs(0)
  Form4.mde(0) "5", picpbs(0).BorderStyle 1, picpbs(5) picture 14x122, picpbs(5).Width 210
set Form4.mde(0).Text = "wide"; mousedown Form4.picbox 1 0 5 35
  Form4.picbox.DrawWidth 15
set Form4.mde(0).Text = "5"; mousedown Form4.picbox 1 0 33 5
  Form4.picbox.DrawWidth 5, picbox.Point(35,5) 65280, picbox.Point(36,5) 16777215
click Form4.picpbs(5)
  Form4.picpbs(0).BorderStyle 0, mde(0) "5"

# The right button fills a swatch with the pair in hand. The palette is saved, and what is changed afterwards is not.
mousedown Form4.clrboxs(4) 2 0 5 5
  Form4.clrboxs(4) "16711935", clrboxs(4).ForeColor 65280
click Form4.Command3
@changes backup/colors.dat colors.dat | unchanged
set Form4.clrboxs(5).Caption = "changed"

# Mixing. ODDITY(mixed-pair)
click Form4.Command4; scroll Form4.scr1(0) 25; scroll Form4.scr1(2) 3
  Form4.clr1.BackColor 196633, clr2.BackColor 14876422, Text3 "196633"
scroll Form4.scr1(0) 0; scroll Form4.scr1(2) 0
  Form4.clr2.BackColor 16777215
click Form4.Clear
  Form4.Frame3 hidden

# Pan: two thousand at a step, and no stop. ODDITY(canvas-without-a-stop)
click Form4.imgs(0)
  Form4.picbox.Left 4192.5
set Form4.picbox.Left = 0; click Form4.imgs(0)
  Form4.picbox.Left 2000
click Form4.imgs(2)
  Form4.picbox.Left 2000
set Form4.picbox.Left = 8000; click Form4.imgs(2)
  Form4.picbox.Left 6000
set Form4.picbox.Top = 0; click Form4.imgs(1); click Form4.imgs(1)
  Form4.picbox.Top 2000
set Form4.picbox.Top = 8000; click Form4.imgs(3)
  Form4.picbox.Top 6000

# Opened once more, the canvas and the original are new, brush and palette stay.
click Form4.Command1
  Form4 hidden
click Form1.Command32
  Form4.picbox picture 2x1, clrboxs(4) "16711935", clrboxs(5) "changed", mde(0) "5"

# The states: each click on a swatch keeps one, the newest in the last slot.
@data gallery; @copy picend.jpg cdx1.ico; @copy picend.jpg cdx2.ico
@write colors.dat | "16776960",255
click Form1.imgp(1); click Form1.Command32
  Form4.picbox.Width 45, cmdm(1) disabled
# A zoom ahead of the first colour paints into the picture.
click Form4.cmdm(0); click Form4.cmdm(0)
  Form4.picbox.Image picture 12x4, picbox.Point(11,3) 5291540, picbox.AutoRedraw False
click Form4.cmdm(1); click Form4.cmdm(1); click Form4.IMGSPB(0)
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(4) picture 3x1, IMGSPB(3) none
@files . | bookschap.txt | cdx1.ico | cdx2.ico | codex.cfg | colors.dat | picend.jpg | pics2.dat | TEST.jpg | tmppics2.dat
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(3) picture 3x1

# Zoomed in twice: the drawing becomes part of the picture and is stretched, to a little less than the canvas.
# ODDITY(zoom-leaves-an-edge)
set Form4.picbox.Width = 3000; set Form4.picbox.Height = 3000; mousedown Form4.picbox 1 0 100 100
  Form4.picbox.Point(100,100) 255
click Form4.cmdm(0)
  Form4.txt5 "1", picbox.Width 6000, picbox picture 200x200, picbox.Left 1207.5, picbox.Point(200,200) 255
  Form4.picbox.Point(220,200) 16777215
click Form4.cmdm(0)
  Form4.txt5 "2"
click Form4.cmdm(0) | refused: disabled
  Form4.picbox.Width 12000, picbox.Left -1792.5, picbox.Point(0,0) 5291540
# Above level 0 a state is kept without the scratch copy.
@delete TEST.jpg; mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(4) picture 800x800
@show TEST.jpg | missing
# Going back shows the state in its own size; the level stays. ODDITY(level-outlives-going-back)
click Form4.IMGSPB(0)
  Form4.picbox.Width 45, txt5 "2", cmdm(0) disabled
# After a click on the newest state nothing is kept until another picture is set. ODDITY(newest-save-holds)
click Form4.IMGSPB(4); mousedown Form4.picbox 1 0 30 30; mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(3) picture 3x1
click Form4.cmdm(1)
  Form4.picbox.Width 6000, txt5 "1"
set Form4.picbox.Width = 4515.6; click Form4.cmdm(1)
  Form4.picbox.Width 2258, cmdm(1) disabled
# ODDITY(level-as-text)
type Form4.txt5 "7"
  Form4.picbox.Width 2258
click Form4.cmdm(0)
  Form4.txt5 "8", picbox.Width 4516, cmdm(0) enabled, cmdm(1) disabled

# Clicking the original after strokes brings the picture back that was opened; a state that was never kept is a
# white page.
click Form4.IMGSPB(0); mousedown Form4.picbox 1 0 0 0
  Form4.picbox.Point(0,0) 20
click Form4.IMGSPB(0)
  Form4.picbox.Point(0,0) 5291540
click Form4.IMGSPB(1)
  Form4.picbox none, picbox.Image picture 3x1, picbox.Point(1,0) 16777215

# A canvas of one pixel, zoomed in and out. Zoomed out further it has no pixel left, and takes no paint.
@copy picend.jpg newpic.jpg
@restart; click Form1.imgp(0); click Form1.Command32
set Form4.picbox.Width = 15; set Form4.picbox.Height = 15; click Form4.Command5
mousedown Form4.clrboxs(0) 1 0 5 5; mousemove Form4.picbox 1 0 -400 90000
click Form4.cmdm(0); click Form4.cmdm(0)
  Form4.picbox.Width 60
click Form4.cmdm(1); click Form4.cmdm(1)
  Form4.picbox.Width 15
click! Form4.cmdm(1); click! Form4.cmdm(1); click! Form4.cmdm(1)
  Form4.picbox.Width 1
mousedown Form4.picbox 1 0 0 0

# Without a picture: a white page of the design size.
@data gallery; @delete pics2.dat; @copy picend.jpg cdx2.ico; click! Form1.Command32
  Form4.picbox.Width 7995, picbox.Height 5445, picbox.Point(5,5) 16777215, IMGSPB(0) picture 533x363

# A canvas that no memory holds is refused, and none is zoomed that far.
set Form4.picbox.Height = 120; set Form4.picbox.Width = 1e9; set Form4.picbox.Height = 1e9 | error: run-time error 7 "Out of memory"
set Form4.picbox.Height = 120; set Form4.picbox.Width = 150000; set Form4.picbox.Height = 105000
click! Form4.cmdm(0) | message "The picture is too large to be shown any larger." "Lectern 2"
  Form4.picbox.Width 150000, txt5 "0"
