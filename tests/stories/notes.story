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
click Form1.Command14 | message "Open file to add to, or create new file" "Lectern 2"
  Form3.picopen shown, Form3 shown, Caption "Notes", txthelp "RichTextBox1\r\n"
@restart

# The menu's door is the same but for the picture, which it leaves open.
date 2026-11-16
set Form1.picp.Visible = True
click Form1.cc0 | message "Open file to add to, or create new file" "Lectern 2"
  picp shown
click Form3.Command12
click Form1.Command14 | message "Open file to add to, or create new file" "Lectern 2"
  picp hidden

# ODDITY(new-note-copies): a new note begins as what the editor holds.
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "Naomi/Ruth \"friends\""
@show "Naomi'Ruth ''friends''.not"
  | RichTextBox1
  |
  Form3.picopen hidden, lblname "Naomi'Ruth ''friends''", Title "Naomi'Ruth ''friends'' - Notes", lblc ""
  Form3.File1: "Naomi'Ruth ''friends''.not"

type Form3.txthelp "Whither thou goest\nI will go"
  Form3.lblc "c", Title "*Naomi'Ruth ''friends'' - Notes"
click Form3.f3
  Form3.lblc ""
@show "Naomi'Ruth ''friends''.not" | Whither thou goest | I will go
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
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> ""
answer ""
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> ""
  Form3.picopen shown
click Form3.Command3
  Form3.picopen hidden

# Under the name of the note that is open the text goes to its end, and the editor goes on showing the old
# one, altered as it was; another note's end takes it too, and that one is then shown.
type Form3.txthelp "more"
click Form3.f2
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "Naomi'Ruth ''friends''"
@show "Naomi'Ruth ''friends''.not"
  | Whither thou goest
  | I will go
  |
  |
  | more
  Form3.txthelp "more", lblc "c"
@write other.not | other
click Form3.f2
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "other"
  Form3.txthelp "other\r\nmore\r\n", lblc ""

# ODDITY(note-switch-drops): another note in the list drops what was typed, unasked.
type Form3.txthelp "unsaved"
click Form3.Command1
click Form3.File1 "Naomi'Ruth ''friends''.not"
  Form3.txthelp "Whither thou goest\r\nI will go\r\n\r\n\r\nmore\r\n", lblc ""
@show other.not | other | more

# ODDITY(unsaved-stays-unsaved): leaving asks, and asks again after a No; the text stays meanwhile, and no
# chooser opens.
type Form3.txthelp "ἐν ἀρχῇ – בְּרֵאשִׁית"
click Form3.Command12
  | question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> no
  Form3 hidden
click Form1.Command14
  Form3.picopen hidden, txthelp "ἐν ἀρχῇ – בְּרֵאשִׁית"
click Form3.f8
  | question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> no
click Form1.cc0
click Form3.Command12
  | question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> yes
@show "Naomi'Ruth ''friends''.not" | ἐν ἀρχῇ – בְּרֵאשִׁית
click Form1.Command14
click Form3.Command12

# The close box asks too, and then lets the window go, with all that it held.
click Form1.Command14
type Form3.txthelp "kept by the box"
close Form3
  | question "File has been altered. Do you want to save changes to the file: Naomi'Ruth ''friends''?" "Save File" -> yes
@show "Naomi'Ruth ''friends''.not" | kept by the box
  Form3.lblname "NAME", txthelp "RichTextBox1\r\n", Form3 hidden

# ODDITY(deleted-note-stays): after Delete the text is still there; there is no file to save it to until one
# is made anew, and the last version is kept.
click Form1.Command14 | message "Open file to add to, or create new file" "Lectern 2"
click Form3.File1 "other.not"
click Form3.f4 | question "Do you want to delete file: other?" "Delete File" -> no
@files . | bookschap.txt | codex.cfg | Naomi'Ruth ''friends''.not | other.not | tmppics2.dat
click Form3.f4 | question "Do you want to delete file: other?" "Delete File" -> yes
  Form3.picopen shown
  Form3.File1: "Naomi'Ruth ''friends''.not"
@show backup/other.not | other | more
  Form3.txthelp "other\r\nmore\r\n"
click Form3.Command13 | run-time error 53 "File not found"
click Form3.f4
  | question "Do you want to delete file: other?" "Delete File" -> yes
  | run-time error 53 "File not found"
click Form3.Command2 | input "Enter a name for file" "InputBox Demo" "11 - 16 - 26" -> "other"
@show other.not
  | other
  | more
  |

# ODDITY(notes-print-nothing)
click Form3.f6
  Form3.txthelp "other\r\nmore\r\n"
