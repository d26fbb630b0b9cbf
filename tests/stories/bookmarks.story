# A reader marks places, comes back to them, moves them and throws them away.
date 2026-11-16
click Form1.lst "Ruth"
click Form1.Command3
get Form1.picp.Visible
| Form1.picp.Visible = False
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = ""
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "1"
items Form1.File1
| Form1.File1: 0 items
click Form1.Command14
| refused: disabled
answer "Ruth and Naomi"
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "Ruth and Naomi"
@show "Ruth and Naomi.bkm"
| "Ruth and Naomi","Ruth","1"
items Form1.File1
| Form1.File1: 1 items
|   "Ruth and Naomi.bkm"
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = "Ruth and Naomi"

# The date is proposed, with two digits a part; a cancelled or empty box makes nothing.
date 2026-03-07
answer ok
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "03 - 07 - 26"
answer cancel
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> ""
answer ""
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> ""
items Form1.File1
| Form1.File1: 2 items
|   "03 - 07 - 26.bkm"
|   "Ruth and Naomi.bkm"
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = "03 - 07 - 26"

# The reader goes on; the chapter in hand follows, the book does not.
click Form1.lst "Genesis"
scroll Form1.scr 3
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "3"
click Form1.File1 "Ruth and Naomi.bkm"
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "1"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Genesis"
click Form1.Command5
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Ruth"
get Form1.lblbook.Caption
| Form1.lblbook.Caption = "Ruth"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   She gathered grain beside the road.       \r\n"
get Form1.Picture1.Visible
| Form1.Picture1.Visible = False
click Form1.Command3
get Form1.Command16.Enabled
| Form1.Command16.Enabled = False

# Open with nothing picked shows the present place again.
click Form1.lst "Genesis"
scroll Form1.scr 2
click Form1.Command7
click Form1.Command3
click Form1.Command5
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Genesis"
get Form1.lblc.Caption
| Form1.lblc.Caption = "2"
get Form1.scr.Max
| Form1.scr.Max = 3
get Form1.scr.Value
| Form1.scr.Value = 2
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A stranger came by the road at noon.       \r\n2   He asked for water, and it was given him.       \r\nChapter 3\r\n"

# ODDITY(bookmark-doors): the menu's door leaves the picture and the tool buttons alone; Close enables them
# whichever door was used.
set Form1.picp.Visible = True
click Form1.xb
get Form1.picp.Visible
| Form1.picp.Visible = True
get Form1.Picture1.Visible
| Form1.Picture1.Visible = True
get Form1.Command3.Enabled
| Form1.Command3.Enabled = True
click Form1.Command3
get Form1.picp.Visible
| Form1.picp.Visible = False
get Form1.Command3.Enabled
| Form1.Command3.Enabled = False
get Form1.Command1.Enabled
| Form1.Command1.Enabled = True
click Form1.Command7
get Form1.Command3.Enabled
| Form1.Command3.Enabled = True
get Form1.Picture1.Visible
| Form1.Picture1.Visible = False
click Form1.Command7
| refused: hidden

# ODDITY(new-keeps-place): New under a name that exists changes nothing that is read; Update does.
click Form1.xb
answer "Ruth and Naomi"
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "Ruth and Naomi"
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Genesis"
@show "Ruth and Naomi.bkm"
| "Ruth and Naomi","Ruth","1"
| "Ruth and Naomi","Genesis","2"
click Form1.File1 "Ruth and Naomi.bkm"
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"
click Form1.Command6
@show "Ruth and Naomi.bkm"
| "Ruth and Naomi","Genesis","2"
@show "backup/Ruth and Naomi.bkm"
| "Ruth and Naomi","Ruth","1"
| "Ruth and Naomi","Genesis","2"
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"

# Delete asks nothing, and the labels stay: Open still goes there, and Update brings the file back.
click Form1.File1 "Ruth and Naomi.bkm"
click Form1.Command11
items Form1.File1
| Form1.File1: 1 items
|   "03 - 07 - 26.bkm"
@show "backup/Ruth and Naomi.bkm"
| "Ruth and Naomi","Genesis","2"
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = "Ruth and Naomi"
click Form1.Command11
items Form1.File1
| Form1.File1: 1 items
|   "03 - 07 - 26.bkm"
click Form1.lst "Exodus"
click Form1.Command6
@show "Ruth and Naomi.bkm"
| "Ruth and Naomi","Exodus","1"

# ODDITY(update-by-label): where the first field is not the file's name, Update writes another file.
@write hand.bkm "\"Other\",\"Jude\",\"1\"\r\n"
answer "Naomi"
click Form1.Command10
| input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "Naomi"
click Form1.File1 "hand.bkm"
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = "Other"
click Form1.Command6
@show hand.bkm
| "Other","Jude","1"
@show Other.bkm
| "Other","Exodus","1"
@restart

# With no bookmark in hand that is a file without a name, which the list shows.
click Form1.xb
click Form1.Command6
@show .bkm
| "","Genesis","1"
items Form1.File1
| Form1.File1: 6 items
|   ".bkm"
|   "03 - 07 - 26.bkm"
|   "hand.bkm"
|   "Naomi.bkm"
|   "Other.bkm"
|   "Ruth and Naomi.bkm"

# ODDITY(sweeping-chapters): a sweep over the strip is a chapter a movement, and nothing stops it at the end.
click Form1.lst "Genesis"
mousemove Form1.Picture2 0 0 10 10
mousemove Form1.Picture2 0 0 20 10
get Form1.lblc.Caption
| Form1.lblc.Caption = "3"
get Form1.scr.Value
| Form1.scr.Value = 3
mousemove Form1.Picture2 0 0 30 10
get Form1.lblc.Caption
| Form1.lblc.Caption = "4"
get Form1.scr.Value
| Form1.scr.Value = 3
get Form1.LBLMRK(2).Caption
| Form1.LBLMRK(2).Caption = "4"
get Form1.rtxt.Text
| Form1.rtxt.Text = "3   Grace and peace kept the house.       \r\n"
click Form1.Command7
mousemove Form1.Picture2 0 0 10 10
| refused: hidden
