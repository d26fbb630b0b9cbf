# A reader asks for help, reads about the program, and goes to its pages.
@write bookmark.txt "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\b Book marks\\b0\\par Named places.}"
@write paint.txt "Plain text will do."
click Form1.xh2
  txthelp "Lectern 2, by the makers of Lectern, 2026. It is free to use…at the top menu bar.", txthelp.FontBold True, txthelp.FontSize 12
click Form1.lblhp(0)
  txthelp.FontBold False, txthelp "Book marks\r\nNamed places."
click Form1.Command4
  frmhelp hidden
click Form1.xh2
  txthelp "Book marks\r\nNamed places."
click Form1.lblhp(7)
  txthelp "Plain text will do."
type Form1.txthelp "It is only read."
  txthelp "Plain text will do."

# ODDITY(help-close-unlocks): one Close leaves the lock of another panel alone, the other opens it.
click Form1.Command3; click Form1.Command4
  Command16 disabled
click Form1.xh2; click Form1.Command44
  frmhelp hidden, Picture1 shown, Command16 enabled

# About, and the pages.
click Form1.aboutlt | message "Lectern 2, by the makers of Lectern, 2026. It is free to use…at the top menu bar." "Lectern 2"
click Form1.webb1 | browse "http://www.example.org/lectern/"
click Form1.webb2 | browse "http://www.example.org/"
call OpenWebPage "HTTP://EXAMPLE.ORG/a" | browse "HTTP://EXAMPLE.ORG/a"
call OpenWebPage "httpd" | browse "httpd"
# ODDITY(bare-address-replaced)
call OpenWebPage "example.org/pages" | browse "http://www.example.org"
call OpenWebPage "" | browse "http://www.example.org"

# The stored notes replace the text of the pane, shown or not.
call HelpFontSize
  txthelp "To change the size of the font click OPTIONS, at the top of the sceen. Click appropriate number under font size."
call HelpChangingBook
  frmhelp hidden, txthelp "To change the book, close the Text search and the Concordance,…the first 10 chapters."
call HelpContact
  txthelp "To reach the makers of Lectern, please see us on the web by clicking ''Internet'', at the top menu bar."

# The search explains here how long it takes, in front of its own panel.
click Form1.Command16; click Form1.Command15
  frms shown, txthelp "Tested on a: Pent2/266 - book < minute,…codex = < 35 minutes --- Patience is a virtue."
click Form1.Command4

# A topic that is missing ends the program.
click Form1.xh2; click Form1.lblhp(1) | run-time error 53 "File not found" | end
