# A reader marks places, comes back to them, moves them and throws them away.
date 2026-11-16
click Form1.lst "Ruth"
click Form1.Command3
  picp hidden, LBLMRK(0) "", LBLMRK(1) "Ruth", LBLMRK(2) "1", File1 empty
click Form1.Command14 | refused: disabled
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "Ruth and Naomi"
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Ruth","1"
  File1: "Ruth and Naomi.bkm"
  LBLMRK(0) "Ruth and Naomi"

# The date is proposed, with two digits a part; a cancelled or empty box makes nothing.
date 2026-03-07
answer ok
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "03 - 07 - 26"
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> ""
answer ""
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> ""
  File1: "03 - 07 - 26.bkm", "Ruth and Naomi.bkm"
  LBLMRK(0) "03 - 07 - 26"

# The reader goes on; the chapter in hand follows, the book does not.
click Form1.lst "Genesis"
scroll Form1.scr 3
  LBLMRK(1) "Ruth", LBLMRK(2) "3"
click Form1.File1 "Ruth and Naomi.bkm"
  LBLMRK(1) "Ruth", LBLMRK(2) "1", lblbk "Genesis"
click Form1.Command5
  lblbk "Ruth", lblbook "Ruth", lblc "1", rtxt "1   She gathered grain beside the road.       \r\n", Picture1 hidden
click Form1.Command3
  Command16 disabled

# Open with nothing picked shows the present place again.
click Form1.lst "Genesis"
scroll Form1.scr 2
click Form1.Command7
click Form1.Command3
click Form1.Command5
  lblbk "Genesis", lblc "2", scr.Max 3, scr 2
  rtxt: "1   A stranger came by the road at noon.       ", "2   He asked for water, and it was given him.       ",
    "Chapter 3"

# ODDITY(bookmark-doors): the menu's door leaves the picture and the tool buttons alone; Close enables them
# whichever door was used.
set Form1.picp.Visible = True
click Form1.xb
  picp shown, Picture1 shown, Command3 enabled
click Form1.Command3
  picp hidden, Command3 disabled, Command1 enabled
click Form1.Command7
  Command3 enabled, Picture1 hidden
click Form1.Command7 | refused: hidden

# ODDITY(new-keeps-place): New under a name that exists changes nothing that is read; Update does.
click Form1.xb
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "Ruth and Naomi"
  LBLMRK(1) "Genesis"
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Ruth","1" | "Ruth and Naomi","Genesis","2"
click Form1.File1 "Ruth and Naomi.bkm"
  LBLMRK(1) "Ruth"
click Form1.Command6
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Genesis","2"
@show "backup/Ruth and Naomi.bkm" | "Ruth and Naomi","Ruth","1" | "Ruth and Naomi","Genesis","2"
  LBLMRK(1) "Ruth"

# Delete asks nothing, and the labels stay: Open still goes there, and Update brings the file back.
click Form1.File1 "Ruth and Naomi.bkm"
click Form1.Command11
  File1: "03 - 07 - 26.bkm"
@show "backup/Ruth and Naomi.bkm" | "Ruth and Naomi","Genesis","2"
  LBLMRK(0) "Ruth and Naomi"
click Form1.Command11
  File1: "03 - 07 - 26.bkm"
click Form1.lst "Exodus"
click Form1.Command6
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Exodus","1"

# ODDITY(update-by-label): where the first field is not the file's name, Update writes another file.
@write hand.bkm | "Other","Jude","1"
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "03 - 07 - 26" -> "Naomi"
click Form1.File1 "hand.bkm"
  LBLMRK(0) "Other"
click Form1.Command6
@show hand.bkm | "Other","Jude","1"
@show Other.bkm | "Other","Exodus","1"
@restart

# With no bookmark in hand that is a file without a name, which the list shows.
click Form1.xb
click Form1.Command6
@show .bkm | "","Genesis","1"
  File1: ".bkm", "03 - 07 - 26.bkm", "hand.bkm", "Naomi.bkm", "Other.bkm", "Ruth and Naomi.bkm"

# ODDITY(sweeping-chapters): a sweep over the strip is a chapter a movement, and nothing stops it at the end.
click Form1.lst "Genesis"
mousemove Form1.Picture2 0 0 10 10
mousemove Form1.Picture2 0 0 20 10
  lblc "3", scr 3
mousemove Form1.Picture2 0 0 30 10
  lblc "4", scr 3, LBLMRK(2) "4", rtxt "3   Grace and peace kept the house.       \r\n"
click Form1.Command7
mousemove Form1.Picture2 0 0 10 10 | refused: hidden
