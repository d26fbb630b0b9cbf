# A reader keeps notes: writes one, comes back to it, throws one away.
date 2026-11-16
menu Form3
| "File" f1
|   "&Open" f2
|   "&Save" f3
|   "Delete" f4
|   "-" f5
|   "Print" f6
|   "-" f7
|   "E&xit" f8
click Form1.Command14
| message "Open file to add to, or create new file" "Lectern 2"
get Form3.picopen.Visible
| Form3.picopen.Visible = True
get Form3.Visible
| Form3.Visible = True
get Form3.Caption
| Form3.Caption = "Notes"
get Form3.txthelp.Text
| Form3.txthelp.Text = "RichTextBox1\r\n"
@restart

# The menu's door is the same but for the picture, which it leaves open.
date 2026-11-16
set Form1.picp.Visible = True
click Form1.cc0
| message "Open file to add to, or create new file" "Lectern 2"
get Form1.picp.Visible
| Form1.picp.Visible = True
click Form3.Command12
click Form1.Command14
| message "Open file to add to, or create new file" "Lectern 2"
get Form1.picp.Visible
| Form1.picp.Visible = False

# ODDITY(new-note-copies): a new note begins as what the editor holds.
answer "Naomi/Ruth \"friends\""
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "Naomi/Ruth \"friends\""
@show "Naomi'Ruth ''friends''.not"
| RichTextBox1
| 
get Form3.picopen.Visible
| Form3.picopen.Visible = False
get Form3.lblname.Caption
| Form3.lblname.Caption = "Naomi'Ruth ''friends''"
get Form3.Title
| Form3.Title = "Naomi'Ruth ''friends'' - Notes"
get Form3.lblc.Caption
| Form3.lblc.Caption = ""
items Form3.File1
| Form3.File1: 1 items
|   "Naomi'Ruth ''friends''.not"

type Form3.txthelp "Whither thou goest\nI will go"
get Form3.lblc.Caption
| Form3.lblc.Caption = "c"
get Form3.Title
| Form3.Title = "*Naomi'Ruth ''friends'' - Notes"
click Form3.f3
get Form3.lblc.Caption
| Form3.lblc.Caption = ""
@show "Naomi'Ruth ''friends''.not"
| Whither thou goest
| I will go
@show "backup/Naomi'Ruth ''friends''.not"
| RichTextBox1
| 

# ODDITY(note-grows): a load and a save are an empty line more.
click Form3.Command1
click Form3.File1 0
click Form3.Command13
click Form3.Command1
click Form3.File1 0
click Form3.Command13
@show "Naomi'Ruth ''friends''.not"
| Whither thou goest
| I will go
| 
| 

# A cancelled or empty box makes nothing.
click Form3.f2
answer cancel
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> ""
answer ""
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> ""
get Form3.picopen.Visible
| Form3.picopen.Visible = True
click Form3.Command3
get Form3.picopen.Visible
| Form3.picopen.Visible = False

# Under the name of the note that is open the text goes to its end, and the editor goes on showing the old
# one, altered as it was; another note's end takes it too, and that one is then shown.
type Form3.txthelp "more"
click Form3.f2
answer "Naomi'Ruth ''friends''"
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "Naomi'Ruth ''friends''"
@show "Naomi'Ruth ''friends''.not"
| Whither thou goest
| I will go
| 
| 
| more
get Form3.txthelp.Text
| Form3.txthelp.Text = "more"
get Form3.lblc.Caption
| Form3.lblc.Caption = "c"
@write other.not "other\r\n"
click Form3.f2
answer "other"
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "other"
get Form3.txthelp.Text
| Form3.txthelp.Text = "other\r\nmore\r\n"
get Form3.lblc.Caption
| Form3.lblc.Caption = ""

# ODDITY(note-switch-drops): another note in the list drops what was typed, unasked.
type Form3.txthelp "unsaved"
click Form3.Command1
click Form3.File1 "Naomi'Ruth ''friends''.not"
get Form3.txthelp.Text
| Form3.txthelp.Text = "Whither thou goest\r\nI will go\r\n\r\n\r\nmore\r\n"
get Form3.lblc.Caption
| Form3.lblc.Caption = ""
@show other.not
| other
| more

# ODDITY(unsaved-stays-unsaved): leaving asks, and asks again after a No; the text stays meanwhile, and no
# chooser opens.
type Form3.txthelp "ἐν ἀρχῇ – בְּרֵאשִׁית"
answer no
click Form3.Command12
| question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> no
get Form3.Visible
| Form3.Visible = False
click Form1.Command14
get Form3.picopen.Visible
| Form3.picopen.Visible = False
get Form3.txthelp.Text
| Form3.txthelp.Text = "ἐν ἀρχῇ – בְּרֵאשִׁית"
answer no
click Form3.f8
| question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> no
click Form1.cc0
answer yes
click Form3.Command12
| question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> yes
@show "Naomi'Ruth ''friends''.not"
| ἐν ἀρχῇ – בְּרֵאשִׁית
click Form1.Command14
click Form3.Command12

# The close box asks too, and then lets the window go, with all that it held.
click Form1.Command14
type Form3.txthelp "kept by the box"
answer yes
close Form3
| question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> yes
@show "Naomi'Ruth ''friends''.not"
| kept by the box
get Form3.lblname.Caption
| Form3.lblname.Caption = "NAME"
get Form3.txthelp.Text
| Form3.txthelp.Text = "RichTextBox1\r\n"
get Form3.Visible
| Form3.Visible = False

# ODDITY(deleted-note-stays): after Delete the text is still there; there is no file to save it to until one
# is made anew, and the last version is kept.
click Form1.Command14
| message "Open file to add to, or create new file" "Lectern 2"
click Form3.File1 "other.not"
answer no
click Form3.f4
| question "Do you want to delete file: other?" "Delete File" -> no
@files .
| bookschap.txt
| codex.cfg
| Naomi'Ruth ''friends''.not
| other.not
| tmppics2.dat
answer yes
click Form3.f4
| question "Do you want to delete file: other?" "Delete File" -> yes
get Form3.picopen.Visible
| Form3.picopen.Visible = True
items Form3.File1
| Form3.File1: 1 items
|   "Naomi'Ruth ''friends''.not"
@show backup/other.not
| other
| more
get Form3.txthelp.Text
| Form3.txthelp.Text = "other\r\nmore\r\n"
click Form3.Command13
| run-time error 53 "File not found"
answer yes
click Form3.f4
| question "Do you want to delete file: other?" "Delete File" -> yes
| run-time error 53 "File not found"
answer "other"
click Form3.Command2
| input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "other"
@show other.not
| other
| more
| 

# ODDITY(notes-print-nothing)
click Form3.f6
get Form3.txthelp.Text
| Form3.txthelp.Text = "other\r\nmore\r\n"
