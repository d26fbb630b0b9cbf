@data gallery
# Five pictures of the book at a time, numbers above, chapter and verse below.
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "4"
get Form1.imgp(0).Picture
| Form1.imgp(0).Picture = picture 2x1
get Form1.lblp(5).Caption
| Form1.lblp(5).Caption = "1"
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "1: 1"
get Form1.imgp(4).Picture
| Form1.imgp(4).Picture = picture 6x1
get Form1.lblp(9).Caption
| Form1.lblp(9).Caption = "5"
get Form1.lblp(4).Caption
| Form1.lblp(4).Caption = "2: 3"

# The first page is where the strip begins.
click Form1.SSCommand4
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "4"

# The next page shows two pictures and three fillers; behind it there is none.
click Form1.SSCommand3
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "9"
get Form1.lblp(5).Caption
| Form1.lblp(5).Caption = "6"
get Form1.imgp(1).Picture
| Form1.imgp(1).Picture = picture 8x1
get Form1.lblp(1).Caption
| Form1.lblp(1).Caption = "3: 1"
get Form1.imgp(2).Picture
| Form1.imgp(2).Picture = picture 1x1
get Form1.lblp(2).Caption
| Form1.lblp(2).Caption = "end"
get Form1.lblp(7).Caption
| Form1.lblp(7).Caption = "end"
click Form1.SSCommand3
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "9"

# A click picks a picture: it is marked, its record is in hand, and the viewer opens on it.
get Form1.picp.Visible
| Form1.picp.Visible = False
click Form1.imgp(1)
get Form1.picp.Visible
| Form1.picp.Visible = True
get Form1.lblp(1).ForeColor
| Form1.lblp(1).ForeColor = 255
get Form1.lblp(0).ForeColor
| Form1.lblp(0).ForeColor = -2147483630
get Form1.selfile(0).Text
| Form1.selfile(0).Text = "road"
get Form1.selfile(1).Text
| Form1.selfile(1).Text = "Genesis 3: 1"
get Form1.selfile(2).Text
| Form1.selfile(2).Text = "PICTURES BY: A. Painter"
get Form1.picnm.Value
| Form1.picnm.Value = 6
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "road"
get Form1.lblvs.Caption
| Form1.lblvs.Caption = "Genesis 3: 1"
get Form1.pick.Picture
| Form1.pick.Picture = picture 8x1
click Form1.imgp(0)
get Form1.lblp(0).ForeColor
| Form1.lblp(0).ForeColor = 255
get Form1.lblp(1).ForeColor
| Form1.lblp(1).ForeColor = -2147483630
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "ark"

# ODDITY(filler-opens-viewer): a click on a filler empties the record in hand and leaves the viewer as it was.
click Form1.Command37
get Form1.picp.Visible
| Form1.picp.Visible = False
click Form1.imgp(3)
get Form1.selfile(0).Text
| Form1.selfile(0).Text = ""
get Form1.lblp(3).ForeColor
| Form1.lblp(3).ForeColor = 255
get Form1.picnm.Value
| Form1.picnm.Value = 5
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "ark"
get Form1.picp.Visible
| Form1.picp.Visible = True

# A page turn takes the mark away, keeps the record in hand, and moves the viewer nowhere.
click Form1.imgp(0)
click Form1.SSCommand4
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "4"
get Form1.lblp(0).ForeColor
| Form1.lblp(0).ForeColor = -2147483630
get Form1.selfile(0).Text
| Form1.selfile(0).Text = "ark"
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "ark"

# The first picture of all opens also where the viewer stands on it already.
click Form1.imgp(0)
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "river"
get Form1.pick.Picture
| Form1.pick.Picture = picture 2x1
@restart
get Form1.pick.Picture
| Form1.pick.Picture = none
click Form1.imgp(0)
get Form1.pick.Picture
| Form1.pick.Picture = picture 2x1
get Form1.lblvs.Caption
| Form1.lblvs.Caption = "Genesis 1: 1"

# A change of chapter moves the viewer and not the strip.
click Form1.SSCommand3
scroll Form1.scr 2
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "tent"
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "9"
# A change of book goes back to the first page.
click Form1.lst "Exodus"
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "4"

# ODDITY(page-of-fillers): a book of just five pictures has a second page, all of fillers; from there it goes
# back.
click Form1.SSCommand3
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "9"
get Form1.lblp(5).Caption
| Form1.lblp(5).Caption = "end"
get Form1.imgp(0).Picture
| Form1.imgp(0).Picture = picture 1x1
click Form1.SSCommand3
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "9"
click Form1.SSCommand4
get Form1.lblp(5).Caption
| Form1.lblp(5).Caption = "1"

# A book without pictures: five fillers, and neither button leads anywhere.
click Form1.lst "Jude"
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "end"
get Form1.lblp(9).Caption
| Form1.lblp(9).Caption = "end"
get Form1.imgp(4).Picture
| Form1.imgp(4).Picture = picture 1x1
click Form1.SSCommand3
click Form1.SSCommand4
get Form1.lblendpic.Caption
| Form1.lblendpic.Caption = "4"
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "end"
