# A reader marks places, comes back to them, moves them and throws them away.
date 2026-11-16; click Form1.lst "Ruth"; click Form1.Command3
  picp hidden, LBLMRK(0) "", LBLMRK(1) "Ruth", LBLMRK(2) "1", File1 empty
click Form1.Command14 | refused: disabled
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "Ruth and Naomi"
  File1: "Ruth and Naomi.bkm"
  LBLMRK(0) "Ruth and Naomi"
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Ruth","1"

# The date is proposed, with two digits a part; a cancelled or empty box makes nothing.
date 2026-03-07; answer ok; click Form1.Command10 | input … "03 - 07 - 26" -> "03 - 07 - 26"
click Form1.Command10 | input … -> ""
answer ""; click Form1.Command10 | input … -> ""
  File1: "03 - 07 - 26.bkm", "Ruth and Naomi.bkm"
  LBLMRK(0) "03 - 07 - 26"

# The reader reads on; the panel's chapter follows, its book does not.
click Form1.lst "Genesis"; scroll Form1.scr 3
  LBLMRK(1) "Ruth", LBLMRK(2) "3"
click Form1.File1 "Ruth and Naomi.bkm"
  LBLMRK(1) "Ruth", LBLMRK(2) "1", lblbk "Genesis"
click Form1.Command5
  lblbk "Ruth", lblbook "Ruth", lblc "1", rtxt "1   She gathered grain…", Picture1 hidden
click Form1.Command3
  Command16 disabled

# Open with nothing picked shows the present place again.
click Form1.lst "Genesis"; scroll Form1.scr 2; click Form1.Command7; click Form1.Command3
click Form1.Command5
  lblbk "Genesis", lblc "2", scr.Max 3, scr 2, rtxt "1   A stranger came by the road at noon.…Chapter 3\r\n"

# ODDITY(bookmark-doors): the menu leaves the picture and the tool buttons alone; Close enables them whichever
# way the panel was opened.
set Form1.picp.Visible = True; click Form1.xb
  picp shown, Picture1 shown, Command3 enabled
click Form1.Command3
  picp hidden, Command3 disabled, Command1 enabled
click Form1.Command7
  Command3 enabled, Picture1 hidden
click Form1.Command7 | refused: hidden

# ODDITY(new-keeps-place): New under a name that exists changes nothing that is read; Update does.
click Form1.xb; click Form1.Command10 | input … -> "Ruth and Naomi"
  LBLMRK(1) "Genesis"
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Ruth","1" | "Ruth and Naomi","Genesis","2"
click Form1.File1 "Ruth and Naomi.bkm"; click Form1.Command6
  LBLMRK(1) "Ruth"
@changes "backup/Ruth and Naomi.bkm" "Ruth and Naomi.bkm" | unchanged
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Genesis","2"

# Delete asks nothing, and the labels stay: Open still goes there, and Update brings the file back.
click Form1.File1 "Ruth and Naomi.bkm"; click Form1.Command11
  File1: "03 - 07 - 26.bkm"
  LBLMRK(0) "Ruth and Naomi"
@show "backup/Ruth and Naomi.bkm" | "Ruth and Naomi","Genesis","2"
click Form1.Command11
  File1: "03 - 07 - 26.bkm"
click Form1.lst "Exodus"; click Form1.Command6
@show "Ruth and Naomi.bkm" | "Ruth and Naomi","Exodus","1"

# ODDITY(update-by-label): where the first field is not the file's name, Update writes another file.
@write hand.bkm | "Other","Jude","1"
click Form1.Command10 | input … -> "Naomi"
click Form1.File1 "hand.bkm"
  LBLMRK(0) "Other"
click Form1.Command6
@changes hand.bkm | unchanged
@show Other.bkm | "Other","Exodus","1"

# With no bookmark in hand it writes a file without a name, which the list shows.
@restart; click Form1.xb; click Form1.Command6
@show .bkm | "","Genesis","1"
  File1: ".bkm", "03 - 07 - 26.bkm", "hand.bkm", "Naomi.bkm", "Other.bkm", "Ruth and Naomi.bkm"

# ODDITY(sweeping-chapters): each movement over the strip is the next chapter, and nothing stops it at the end.
click Form1.lst "Genesis"; mousemove Form1.Picture2 0 0 10 10; mousemove Form1.Picture2 0 0 20 10
  lblc "3", scr 3
mousemove Form1.Picture2 0 0 30 10
  lblc "4", scr 3, LBLMRK(2) "4", rtxt "3   Grace and peace kept the house.       \r\n"
click Form1.Command7; mousemove Form1.Picture2 0 0 10 10 | refused: hidden

# Names in any script; what a file name cannot have, and quotes, are replaced.
@data small; click Form1.xb; click Form1.Command10 | input … -> "a\"b/c\\d"
click Form1.Command10 | input … -> "רות ונעמי"
click Form1.Command10 | input … -> "Ῥούθ, ά"
  File1: "a''b'c'd.bkm", "רות ונעמי.bkm", "Ῥούθ, ά.bkm"
@show "a''b'c'd.bkm" | "a''b'c'd","Genesis","1"
@show "רות ונעמי.bkm" | "רות ונעמי","Genesis","1"
click Form1.File1 "Ῥούθ, ά.bkm"
  LBLMRK(0) "Ῥούθ, ά"

# In a file a comma inside quotes is text; fields may stand unquoted, or on lines of their own. Open goes on with
# whatever chapter and book it is given.
@write odd.bkm | "Ruth, and Naomi",Ruth,1 | "second","Jude","1"
@write lines.bkm "three\nExodus\n2"
@write lost.bkm | lost,Nowhere,seven
@write short.bkm | "only a name"
@restart; click Form1.xb; click Form1.File1 "odd.bkm"
  LBLMRK(0) "Ruth, and Naomi", LBLMRK(1) "Ruth", LBLMRK(2) "1"
click Form1.File1 "lines.bkm"; click Form1.Command5
  lblbk "Exodus", lblc "2"
click Form1.xb; click Form1.File1 "lost.bkm"; click Form1.Command5
  lblbk "Nowhere", lblc "seven", Picture1 hidden

# Too few fields, a file that has been deleted and a name with a control character end the program.
click Form1.xb; click Form1.File1 "short.bkm" | run-time error 62 "Input past end of file" | end
@restart; click Form1.xb; @delete short.bkm
click Form1.File1 "short.bkm" | run-time error 53 "File not found" | end
@restart; click Form1.xb; click Form1.File1 "odd.bkm"; @delete odd.bkm
click Form1.Command11 | run-time error 53 "File not found" | end
@changes . | +1 a''b'c'd.bkm | +4 lines.bkm | +5 lost.bkm | +6 tmppics2.dat | +7 רות ונעמי.bkm | +8 Ῥούθ, ά.bkm
@restart; click Form1.xb
click Form1.Command10 | input … -> "when\tnow" | run-time error 52 "Bad file name or number" | end
@changes . | unchanged

# Update under such a name does nothing. Where the data folder is gone Update does nothing either, and New ends the
# program.
@restart; click Form1.xb; set Form1.LBLMRK(0).Caption = "when\tnow"; click Form1.Command6
  Picture1 shown
@delete; click Form1.Command6
click Form1.Command10 | input … -> "x" | run-time error 76 "Path not found" | end

# A name may have 251 bytes before its ending, in any script, and none more.
@data small; click Form1.xb
click Form1.Command10 | input … -> "ῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥab"
click Form1.File1 0; click Form1.Command6; click Form1.Command11
@files backup | ῥῥῥ…ab.bkm
click Form1.Command10 | input … -> "ῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥῥabc" | run-time error 52… | end
