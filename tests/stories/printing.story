# A page is printed from the bookmarks; it does not show the notes.
printer on; click Form1.Command3
# ODDITY(print-page-empty): with no bookmark in hand the note is NAME.NOT, and it is left as it is.
click Form1.Command30
@show NAME.NOT | empty
  Form2 shown, Text1 "Text1"
@write NAME.NOT | kept, as it is
type Form2.Text1 "For Sunday:\r\nRuth 1"; click Form2.Command1 | print Form2 618x906
  Form2.Height 7050, Text1.Height 5775, Command1 shown, Command2 shown
click Form2.Command2
  Form2 hidden
click Form1.Command30
  Form2.Text1 "For Sunday:\r\nRuth 1"
@changes NAME.NOT | unchanged

# After printing, the window has its own height again, whatever it was before.
set Form2.Height = 9000; click Form2.Command1 | print Form2 618x906
  Form2.Height 7050

# ODDITY(no-printer-untold)
printer off; click Form2.Command1
  Form2.Command1 shown, Text1.Height 5775
close Form2
  Form2 hidden, Text1 "For Sunday:\r\nRuth 1"

# The note has the bookmark's name; one that the file system refuses makes none, and the page opens all the
# same.
click Form1.Command10 | input … -> "Ruth"
click Form1.Command30
@show Ruth.NOT | empty
set Form1.LBLMRK(0).Caption = "when\tnow"; click Form2.Command2; click Form1.Command30
  Form2 shown
@files . | bookschap.txt | codex.cfg | NAME.NOT | Ruth.bkm | Ruth.NOT | tmppics2.dat
