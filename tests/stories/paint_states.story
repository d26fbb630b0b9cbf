@data gallery
# Zoom and the four states that are kept.
@copy picend.jpg cdx1.ico
@copy picend.jpg cdx2.ico
@write colors.dat | "16776960",255
click Form1.imgp(1)
click Form1.Command32
  Form4.picbox.Width 45, cmdm(1) disabled

# A zoom ahead of the first colour paints into the picture.
click Form4.cmdm(0)
click Form4.cmdm(0)
  Form4.picbox.Image picture 12x4, picbox.Point(11,3) 5291540, picbox.AutoRedraw False
click Form4.cmdm(1)
click Form4.cmdm(1)
click Form4.IMGSPB(0)

mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(4) picture 3x1, IMGSPB(3) none
@files .
  | bookschap.txt
  | cdx1.ico
  | cdx2.ico
  | codex.cfg
  | colors.dat
  | picend.jpg
  | pics2.dat
  | TEST.jpg
  | tmppics2.dat
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(3) picture 3x1

# Zoomed in twice: the drawing is baked and stretched, a little smaller than the canvas.
# ODDITY(zoom-leaves-an-edge)
set Form4.picbox.Width = 3000
set Form4.picbox.Height = 3000
mousedown Form4.picbox 1 0 100 100
  Form4.picbox.Point(100,100) 255
click Form4.cmdm(0)
  Form4.txt5 "1", picbox.Width 6000, picbox picture 200x200, picbox.Left 1207.5, picbox.Point(200,200) 255
  Form4.picbox.Point(220,200) 16777215
click Form4.cmdm(0)
  Form4.txt5 "2"
click Form4.cmdm(0) | refused: disabled
  Form4.picbox.Width 12000, picbox.Left -1792.5, picbox.Point(0,0) 5291540
# Above level 0 a state is kept without the scratch copy.
@delete TEST.jpg
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(4) picture 800x800
@show TEST.jpg | missing
# Going back shows the state in its own size; the level stays. ODDITY(level-outlives-going-back)
click Form4.IMGSPB(0)
  Form4.picbox.Width 45, txt5 "2", cmdm(0) disabled
# After a click on the newest state nothing is kept until another picture is set. ODDITY(newest-save-holds)
click Form4.IMGSPB(4)
mousedown Form4.picbox 1 0 30 30
mousedown Form4.clrboxs(0) 1 0 5 5
  Form4.IMGSPB(3) picture 3x1
click Form4.cmdm(1)
  Form4.picbox.Width 6000, txt5 "1"
set Form4.picbox.Width = 4515.6
click Form4.cmdm(1)
  Form4.picbox.Width 2258, cmdm(1) disabled
# ODDITY(level-as-text)
type Form4.txt5 "7"
  Form4.picbox.Width 2258
click Form4.cmdm(0)
  Form4.txt5 "8", picbox.Width 4516, cmdm(0) enabled, cmdm(1) disabled

# Clicking the original after strokes brings the picture back that was opened.
click Form4.IMGSPB(0)
mousedown Form4.picbox 1 0 0 0
  Form4.picbox.Point(0,0) 20
click Form4.IMGSPB(0)
  Form4.picbox.Point(0,0) 5291540

# Going back to a state that was never kept leaves a white page.
click Form4.IMGSPB(1)
  Form4.picbox none, picbox.Image picture 3x1, picbox.Point(1,0) 16777215

# A pointer that is missing: nothing traps it, and the marks stand as they were set so far.
click Form4.picpbs(3) | run-time error 53 "File not found" | end
