# The driver answers what it does not understand and what a person could not do, and goes on.
get Form1.nothing.Caption | error: no control Form1.nothing
get Form1.lst.Nothing | error: no property Form1.lst.Nothing
get Form9.lst.Visible | error: no window Form9
items Form1.lblc | error: Form1.lblc has no items
items Form1.Combo3 | Form1.Combo3: 4 items |   "Regular" |   "Italic" |   "Bold" |   "Bold Italic"
frobnicate | error: no command frobnicate
click Form1.List1
click Form1.Combo1 | refused: hidden
click! Form1.Command46
click Form1.lst "Nowhere" | error: no item "Nowhere"
click Form1.lst 99 | error: no item 99
click Form1.lst
  lblbk "Genesis"
set Form1.scr.Value = 4 | error: run-time error 380 "Invalid property value"
set Form1.scr.Value = "x" | error: run-time error 13 "Type mismatch"
set Form1.Dir3.Path = "nowhere" | error: run-time error 76 "Path not found"
set Form1.lst.Selected(1) = True
set Form1.lst.Selected(0) = False
  lst.Selected(1) True
set Form1.lst.Selected(-2) = True | error: run-time error 380 "Invalid property value"
  lst.Selected(1) True
get Form1.lst.sorted | Form1.lst.Sorted = False
  lstc.Sorted True
click Form1.lst 1 2 | error: one item is wanted
click Form1.Command16 "twice" | error: Form1.Command16 has no items to click
type Form1.lst no quotes | error: a text is wanted
type Form1.lst "Ruth" | error: Form1.lst takes no text
call HELPTIPS
call OpenWebPage "a" "b" | error: a routine is wanted
get form1.LST.list(7) | Form1.lst.List(7) = "Ruth"
get FORM1.LBLMRK(9).Caption | error: no control FORM1.LBLMRK(9)
set Form1.lblbk.Caption = "tab\t quote\" back\\ end\r\n\x01"
get form1.LBLBK.caption | Form1.lblbk.Caption = "tab\t quote\" back\\ end\r\n\x01"
  rtxt shown, picp none, picp.BackColor -2147483633
get Form1.picp.image | Form1.picp.Image = picture 636x464
run | ran 0 ticks
tick
tick 3 | error: no more words are wanted
menu Form1 Form2 | error: one window is wanted
date 2021-02-29 | error: a date is wanted: YYYY-MM-DD
screen inf 10710 | error: a width and a height in twips are wanted
random nan | error: numbers from 0 up to but not 1 are wanted
random 0.75 1 | error: numbers from 0 up to but not 1 are wanted
echo  two  blanks stay
  |  two  blanks stay
@status | 2

# A failure in a tick is reported where it happened, then the end, then the count of the ticks.
@restart
set Form1.tmrpic.Enabled = True
run 5 | run-time error 380 "Invalid property value" | end | ran 1 ticks
