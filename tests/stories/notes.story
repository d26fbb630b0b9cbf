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
# The tool button closes the picture, the menu leaves it open.
set Form1.picp.Visible = True
click Form1.cc0 | message "Open file to add to, or create new file" "Lectern 2"
  picp shown, Form3 shown, Caption "Notes", picopen shown, txthelp "RichTextBox1\r\n"
click Form3.Command12; click Form1.Command14 | message "Open file to add to, or create new file" "Lectern 2"
  picp hidden, Form3 shown, picopen shown

# ODDITY(new-note-copies): a new note begins as what the editor holds.
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "Naomi/Ruth \"friends\""
  Form3.picopen hidden, lblname "Naomi'Ruth ''friends''", Title "Naomi'Ruth ''friends'' - Notes", lblc ""
  Form3.File1: "Naomi'Ruth ''friends''.not"
@show "Naomi'Ruth ''friends''.not"
  | RichTextBox1
  |
type Form3.txthelp "Whither thou goest\nI will go"
  Form3.lblc "c", Title "*Naomi'Ruth ''friends'' - Notes"
click Form3.f3
  Form3.lblc ""
@changes "backup/Naomi'Ruth ''friends''.not" "Naomi'Ruth ''friends''.not" | unchanged
@show "Naomi'Ruth ''friends''.not" | Whither thou goest | I will go

# ODDITY(note-grows): each load and save adds an empty line.
click Form3.Command1; click Form3.File1 0; click Form3.Command13
click Form3.Command1; click Form3.File1 0; click Form3.Command13
@changes "Naomi'Ruth ''friends''.not"
  | +3
  | +4

# A cancelled or empty box makes nothing.
click Form3.f2; click Form3.Command2 | input … -> ""
answer ""; click Form3.Command2 | input … -> ""
  Form3.picopen shown
click Form3.Command3
  Form3.picopen hidden

# Under the name of the note that is open the text goes to its end, and the editor goes on showing the old
# one, altered as it was; another note's end takes it too, and that one is then shown.
type Form3.txthelp "more"; click Form3.f2; click Form3.Command2 | input … -> "Naomi'Ruth ''friends''"
  Form3.txthelp "more", lblc "c"
@changes "Naomi'Ruth ''friends''.not" | +5 more
@write other.not | other
click Form3.f2; click Form3.Command2 | input … -> "other"
  Form3.txthelp "other\r\nmore\r\n", lblc ""

# ODDITY(note-switch-drops): another note in the list drops what was typed, unasked.
type Form3.txthelp "unsaved"; click Form3.Command1; click Form3.File1 "Naomi'Ruth ''friends''.not"
  Form3.txthelp "Whither thou goest\r\nI will go\r\n\r\n\r\nmore\r\n", lblc ""
@show other.not | other | more

# ODDITY(unsaved-stays-unsaved): leaving asks, and asks again after a No; the text stays meanwhile, and no
# chooser opens.
type Form3.txthelp "ἐν ἀρχῇ – בְּרֵאשִׁית"; click Form3.Command12
  | question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> no
  Form3 hidden
click Form1.Command14
  Form3.picopen hidden, txthelp "ἐν ἀρχῇ – בְּרֵאשִׁית"
click Form3.f8 | question "File has been altered.…Naomi'Ruth ''friends''?" "Save File" -> no
click Form1.cc0
click Form3.Command12 | question "File has been altered.…Naomi'Ruth ''friends''?" "Save File" -> yes
@show "Naomi'Ruth ''friends''.not" | ἐν ἀρχῇ – בְּרֵאשִׁית
click Form1.Command14; click Form3.Command12

# The close box asks too, and then the window goes with all that it held.
click Form1.Command14; type Form3.txthelp "kept by the box"
close Form3 | question "File has been altered.…Naomi'Ruth ''friends''?" "Save File" -> yes
  Form3.lblname "NAME", txthelp "RichTextBox1\r\n", Form3 hidden
@show "Naomi'Ruth ''friends''.not" | kept by the box

# ODDITY(deleted-note-stays): after Delete the text is still there; there is no file to save it to until one
# is made anew, and the last version is kept.
click Form1.Command14 | message "Open file to add to, or create new file" "Lectern 2"
click Form3.File1 "other.not"
click Form3.f4 | question "Do you want to delete file: other?" "Delete File" -> no
@changes other.not | unchanged
click Form3.f4 | question "Do you want to delete file: other?" "Delete File" -> yes
  Form3.picopen shown, txthelp "other\r\nmore\r\n"
  Form3.File1: "Naomi'Ruth ''friends''.not"
@changes backup/other.not other.not | unchanged
click Form3.Command13 | run-time error 53 "File not found"
click Form3.f4 | question "Do you want to delete file: other?" "Delete File" -> yes | run-time error 53 "File not found"
click Form3.Command2 | input … -> "other"
@show other.not
  | other | more
  |

# ODDITY(notes-print-nothing)
click Form3.f6
  Form3.txthelp "other\r\nmore\r\n"

# What goes wrong is reported, and the program and the text stay: here, saving before any note was opened.
@data small; date 2026-11-16
@write mine.not | mine
@write folder/deep.not "deep"
@write LOUD.NOT "loud"
click Form1.cc0 | message "Open file…" "Lectern 2"
click Form3.f3 | run-time error 53 "File not found"
  Form3.File1: "LOUD.NOT", "mine.not"
click Form3.File1 "LOUD.NOT"
  Form3.lblname "LOUD", txthelp "loud"

# ODDITY(drive-fails)
click Form3.f2
  Form3.Drive1: "/"
choose Form3.Drive1 "/"; set Form3.Drive1.Drive = "D:" | error: run-time error 424 "Object required"
  Form3.Dir1.Path "DATA"

# Another folder shows its own notes. ODDITY(notes-folder-now): a note from the folder before is looked for
# and written in the one that is shown.
click Form3.File1 "mine.not"; click Form3.f2; set Form3.Dir1.Path = "folder"
  Form3.File1: "deep.not"
type Form3.txthelp "mine, altered"; click Form3.Command13 | run-time error 53 "File not found"
  Form3.lblc "c"
@write folder/mine.not | the other mine
click Form3.Command13
@show folder/mine.not | mine, altered
@show backup/folder/mine.not | the other mine
@changes mine.not | unchanged

# The chooser lists what is there when it opens; a note that goes away meanwhile, one without a name, and the name
# that stands for none.
click Form3.File1 "deep.not"; click Form3.f2; @delete folder/deep.not
click Form3.File1 "deep.not" | run-time error 53 "File not found"
  Form3.picopen shown, lblname "deep", txthelp "deep"
@write folder/.not "nameless"
@write folder/NAME.not "NAME"
set Form3.Dir1.Path = "."; set Form3.Dir1.Path = "folder"
  Form3.File1: ".not", "mine.not", "NAME.not"
click Form3.File1 ".not"
  Form3.lblname "", txthelp "deep", Title "Notes"
click Form3.f2; click Form3.File1 "NAME.not"
  Form3.txthelp "NAME", Title "Notes"
click Form3.Command12; click Form1.cc0 | message "Open file…" "Lectern 2"

# A name that the file system refuses, and a folder that vanished.
click Form3.Command2 | input … -> "what\tnow" | run-time error 52 "Bad file name or number"
  Form3.lblname "NAME", picopen shown
@delete folder; click Form3.Command2 | input … -> "gone" | run-time error 76 "Path not found"
click Form3.Command3; type Form3.txthelp "still here"; click Form3.f3 | run-time error 76 "Path not found"
click Form3.Command12 | question "File has been altered.…NAME?" "Save File" -> yes | run-time error 76 "Path not found"
  Form3 shown
close Form3 | question "File has been altered.…NAME?" "Save File" -> yes | run-time error 76 "Path not found"
  Form3.txthelp "still here", lblc "c"

# At the end of the program nothing is asked.
click Form1.Command1 | end
