@data gallery
# A reader paints on a picture of the gallery: colours, brushes, zoom, the states that were kept.
@copy picend.jpg cdx1.ico
@copy picend.jpg cdx2.ico
@copy picend.jpg cdx5.ico
@write colors.dat "\"16776960\",255\r\n\"X\",65280\r\n\"not a number\",16711680\r\n"
click Form1.imgp(0)
get Form1.pick.Picture
| Form1.pick.Picture = picture 2x1
click Form1.Command32
get Form4.Visible
| Form4.Visible = True
get Form4.Caption
| Form4.Caption = "paint"
get Form4.picbox.Picture
| Form4.picbox.Picture = picture 2x1
get Form4.picbox.Left
| Form4.picbox.Left = 4192.5
get Form4.IMGSPB(0).Picture
| Form4.IMGSPB(0).Picture = picture 2x1
# The first pen is a near black under the first swatch's colour. ODDITY(first-pen) ODDITY(pointer-of-another-brush)
get Form4.clr1.BackColor
| Form4.clr1.BackColor = 3
get Form4.clr2.BackColor
| Form4.clr2.BackColor = 255
get Form4.mde(0).Text
| Form4.mde(0).Text = "15"
get Form4.picbox.MouseIcon
| Form4.picbox.MouseIcon = picture 1x1
# Swatches as the file has them; those it does not name stay as they are.
get Form4.clrboxs(1).Caption
| Form4.clrboxs(1).Caption = "X"
get Form4.clrbox(1).BackColor
| Form4.clrbox(1).BackColor = 65280
get Form4.clrbox(3).BackColor
| Form4.clrbox(3).BackColor = 255

# A canvas of a size to paint on: the blank page.
@copy picend.jpg newpic.jpg
click Form4.Command5
get Form4.picbox.Picture
| Form4.picbox.Picture = picture 1x1
set Form4.picbox.Width = 600
set Form4.picbox.Height = 600
get Form4.picbox.Point(20,20)
| Form4.picbox.Point(20,20) = 16777215

# Before a swatch or a brush is clicked, a stroke is seen and is no part of the picture.
mousedown Form4.picbox 1 0 20 20
get Form4.picbox.Point(20,20)
| Form4.picbox.Point(20,20) = 16777215
mousedown Form4.clrboxs(0) 1 0 5 5
get Form4.clr1.BackColor
| Form4.clr1.BackColor = 16776960
get Form4.clr2.BackColor
| Form4.clr2.BackColor = 255
get Form4.picbox.AutoRedraw
| Form4.picbox.AutoRedraw = True
mousedown Form4.picbox 1 0 20 20
get Form4.picbox.Point(20,20)
| Form4.picbox.Point(20,20) = 255
get Form4.picbox.Point(20,13)
| Form4.picbox.Point(20,13) = 255
get Form4.picbox.Point(20,12)
| Form4.picbox.Point(20,12) = 16777215
mousemove Form4.picbox 0 0 35 35
get Form4.picbox.Point(35,35)
| Form4.picbox.Point(35,35) = 16777215
mousemove Form4.picbox 2 0 35 35
get Form4.picbox.Point(35,35)
| Form4.picbox.Point(35,35) = 255
get Form4.xpos.Caption
| Form4.xpos.Caption = "0"
# A second colour on top takes its own away from the first: green's pen on red leaves what both let through.
set Form4.clrboxs(1).Caption = "16711935"
mousedown Form4.clrboxs(1) 1 0 5 5
mousedown Form4.picbox 1 0 20 20
get Form4.picbox.Point(20,20)
| Form4.picbox.Point(20,20) = 0

# A brush, shown whole in the box of the chosen one; the width takes effect at the next press. A setting that is no number leaves the old one.
click Form4.picpbs(0)
get Form4.mde(0).Text
| Form4.mde(0).Text = "5"
get Form4.picpbs(0).BorderStyle
| Form4.picpbs(0).BorderStyle = 1
get Form4.picpbs(5).Picture
| Form4.picpbs(5).Picture = picture 14x122
get Form4.picpbs(5).Width
| Form4.picpbs(5).Width = 210
set Form4.mde(0).Text = "wide"
mousedown Form4.picbox 1 0 5 35
get Form4.picbox.DrawWidth
| Form4.picbox.DrawWidth = 15
set Form4.mde(0).Text = "5"
mousedown Form4.picbox 1 0 33 5
get Form4.picbox.DrawWidth
| Form4.picbox.DrawWidth = 5
get Form4.picbox.Point(35,5)
| Form4.picbox.Point(35,5) = 65280
get Form4.picbox.Point(36,5)
| Form4.picbox.Point(36,5) = 16777215
click Form4.picpbs(5)
get Form4.picpbs(0).BorderStyle
| Form4.picpbs(0).BorderStyle = 0
get Form4.mde(0).Text
| Form4.mde(0).Text = "5"

# The right button fills a swatch with the pair in hand.
mousedown Form4.clrboxs(4) 2 0 5 5
get Form4.clrboxs(4).Caption
| Form4.clrboxs(4).Caption = "16711935"
get Form4.clrboxs(4).ForeColor
| Form4.clrboxs(4).ForeColor = 65280
click Form4.Command3
@show backup/colors.dat
| "16776960",255
| "X",65280
| "not a number",16711680
set Form4.clrboxs(5).Caption = "changed"

# Mixing.
get Form4.Frame3.Visible
| Form4.Frame3.Visible = False
click Form4.Command4
scroll Form4.scr1(0) 25
scroll Form4.scr1(2) 3
get Form4.clr1.BackColor
| Form4.clr1.BackColor = 196633
get Form4.clr2.BackColor
| Form4.clr2.BackColor = 14876422
get Form4.Text3.Text
| Form4.Text3.Text = "196633"
scroll Form4.scr1(0) 0
scroll Form4.scr1(2) 0
get Form4.clr2.BackColor
| Form4.clr2.BackColor = 16777215
# ODDITY(mixed-pair)
click Form4.Clear
get Form4.Frame3.Visible
| Form4.Frame3.Visible = False

# Pan: two thousand at a step, and no stop.
get Form4.picbox.Left
| Form4.picbox.Left = 4192.5
click Form4.imgs(0)
get Form4.picbox.Left
| Form4.picbox.Left = 4192.5
set Form4.picbox.Left = 0
click Form4.imgs(0)
get Form4.picbox.Left
| Form4.picbox.Left = 2000
# ODDITY(canvas-without-a-stop)
click Form4.imgs(2)
get Form4.picbox.Left
| Form4.picbox.Left = 2000
set Form4.picbox.Left = 8000
click Form4.imgs(2)
get Form4.picbox.Left
| Form4.picbox.Left = 6000
click Form4.imgs(1)
get Form4.picbox.Top
| Form4.picbox.Top = 4200

click Form4.Command1
get Form4.Visible
| Form4.Visible = False
# Open once more: the canvas and the original are new, brush and palette stay.
click Form1.Command32
get Form4.picbox.Picture
| Form4.picbox.Picture = picture 2x1
get Form4.clrboxs(4).Caption
| Form4.clrboxs(4).Caption = "16711935"
get Form4.clrboxs(5).Caption
| Form4.clrboxs(5).Caption = "changed"
get Form4.mde(0).Text
| Form4.mde(0).Text = "5"
