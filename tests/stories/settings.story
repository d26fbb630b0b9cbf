# The start: window, folders, settings, lists. The program starts whatever is missing.
screen 30000 20000; fonts "Arial" "Georgia" "Times New Roman"
  Form1 shown, Left 8070, Top 4645, Width 13860, Dir3.Path "DATA\\KJV", Dirpics.Path "DATA"
  Combo1: "Arial", "Georgia", "Times New Roman"
  Combo3: "Regular", "Italic", "Bold", "Bold Italic"
  LBLMRK(0) "", picp hidden, Picture2.Left 800, Picture2.Top 1800, frmhelp.Top 360, Picture17.Left 100, frmd.Left 240
@changes codex.cfg | unchanged

# A reader's eyes are tired: a larger font from the Options menu, a warmer window, and the same again tomorrow.
click Form1.oo11
  Picture23 shown, Command3 enabled, Combo1 "Georgia", rtxt.FontName "Georgia", lblf(0).FontSize 12
# A pick shows at once, on the samples and on both panes; typing alone does not.
set Form1.Command22.MousePointer = 11; choose Form1.Combo1 "Times New Roman"
  Command22.MousePointer 0
choose Form1.Combo2 "18"; choose Form1.Combo3 "Bold Italic"
  lblf(1).FontName "Times New Roman", lblf(1).FontSize 18, lblf(1).FontItalic True, rtxt.FontName "Times New Roman"
  rtxt.FontSize 18, rtxt.FontBold True, RTXT2.FontItalic True
type Form1.Combo2 "13.5"
  rtxt.FontSize 18
choose Form1.Combo3 "Regular"
  rtxt.FontSize 13.5, rtxt.FontBold False, RTXT2.FontSize 13.5
# The entry that stands in a box is no change, unless its text was typed.
type Form1.Combo2 "14"; choose Form1.Combo3 "Regular"
  rtxt.FontSize 13.5
choose Form1.Combo2 "14"
  rtxt.FontSize 14
type Form1.Combo2 "13.5"; choose Form1.Combo3 "Bold"; choose Form1.Combo3 "Regular"

# Only Save writes the file; Close takes nothing back.
@changes codex.cfg | unchanged
click Form1.Command36
@changes backup/codex.cfg codex.cfg | unchanged
@show codex.cfg | "Times New Roman","13.5","Regular"
choose Form1.Combo3 "Bold"; click Form1.Command24
  Picture23 hidden, rtxt.FontBold True
@restart
  Combo1 "Times New Roman", rtxt.FontSize 13.5, rtxt.FontBold False

# Front colours the panels, and Back the window; neither is there at the next start. ODDITY(front-colour)
click Form1.oo11; click Form1.Picture31
  Picture23.BackColor 33023, frmc.BackColor 33023, frmd.BackColor 33023, Picture17.BackColor 33023
  frmhelp.BackColor 33023, frms.BackColor 33023, frmscale.BackColor 33023, FRMMARK.BackColor 33023
  Picture1.BackColor -2147483633, BackColor -2147483633
click Form1.Option3; click Form1.Picture25
  BackColor 12632256, Picture23.BackColor 33023
click Form1.Picture35
  BackColor -2147483643
@restart
  Picture23.BackColor -2147483633

# ODDITY(close-unlocks): a tool button that another panel holds locked is free when this one closes.
set Form1.Command3.Enabled = False; click Form1.oo11
  Command3 disabled
click Form1.Command24
  Command3 enabled

# A size that is no number, or one that no font can have, leaves the panes as they are while the reader tries on.
click Form1.oo11; type Form1.Combo2 "large"; choose Form1.Combo1 "Arial"
  rtxt.FontName "Arial", rtxt.FontSize 13.5, lblf(0).FontSize 13.5
type Form1.Combo2 "0"; choose Form1.Combo3 "Italic"
  rtxt.FontItalic True, RTXT2.FontItalic True, rtxt.FontSize 13.5
# Saving it ends the program, but the file has it. The next start stops at it before it comes to the style; only
# the samples have that.
type Form1.Combo2 "5000"; click Form1.Command36 | run-time error 380 "Invalid property value" | end
@show codex.cfg | "Arial","5000","Italic"
@restart
  Combo2 "5000", rtxt.FontName "Arial", rtxt.FontItalic False, lblf(0).FontItalic True
click Form1.oo11; type Form1.Combo2 "large"; click Form1.Command36 | run-time error 13 "Type mismatch" | end
# There is nothing to replace: Save deletes before it writes.
@restart; start; @delete codex.cfg; click Form1.oo11
click Form1.Command36 | run-time error 53 "File not found" | end
@show codex.cfg | missing

# ODDITY(default-settings-misread): the first start in an empty folder.
@data empty
  Combo1 "&HFF0000", Combo2 "&H80000005", Combo3 "Arial", rtxt.FontName "&HFF0000", RTXT2.FontName "&HFF0000"
  rtxt.FontSize 0, lst.ListCount 66, lst.List(21) "Song of Solomon", lblbk "Genesis", lblc "1", rtxt ""
@files . | codex.cfg | tmppics2.dat
@show codex.cfg | "&HFF0000","&H80000005","Arial","10"
click Form1.oo11; choose Form1.Combo1 "Georgia"; click Form1.Command36
@show codex.cfg | "Georgia","11","Regular"
# A file of up to 2 bytes gets the default record added; three bytes are left as they are.
@write codex.cfg "ab"
@restart; start
@show codex.cfg | ab"&HFF0000","&H80000005","Arial","10"
@write codex.cfg "abc"
@restart; start
@changes codex.cfg | unchanged
# An older file: its font stands where the style is read, and the style stays.
@write codex.cfg | "Arial","10","Verdana","12"
@restart; set Form1.rtxt.FontBold = True; click Form1.oo11; click Form1.Command36
  rtxt.FontBold True, rtxt.FontName "Arial"
@show codex.cfg | "Arial","10","Verdana"
# Two fields are too few: nothing is applied, and the start goes on.
@write codex.cfg | "Arial","10"
@restart
  Combo1 "", lblbk "Genesis"

# The three ways out, and what each leaves of the settings.
@data small; set Form1.Combo1.Text = "Verdana"; set Form1.Combo2.Text = "14"; set Form1.Combo3.Text = "Bold"
click Form1.Command1 | end
get Form1.lblc.Caption | ended
@changes backup/codex.cfg codex.cfg | unchanged
@show codex.cfg | "Verdana","14","Bold"
@restart
  rtxt.FontName "Verdana", rtxt.FontSize 14, rtxt.FontBold True, RTXT2.FontBold True
set Form1.Combo2.Text = "20"; click Form1.oo12; click Form1.Command1 | end
@changes codex.cfg | unchanged
@restart; close Form1 | end
@changes codex.cfg | unchanged
# ODDITY(menu-exit-loses-settings)
@restart; click Form1.xx | run-time error 424 "Object required" | end
@changes backup/codex.cfg codex.cfg | unchanged
@show codex.cfg | empty
# The next start gives the empty file its default record.
@restart; start
@show codex.cfg | "&HFF0000","&H80000005","Arial","10"
click Form1.oo12; click Form1.xx | end
# No file to delete: the menu's exit fails before it makes one.
@restart; start; @delete codex.cfg; click Form1.xx | run-time error 53 "File not found" | end
@show codex.cfg | missing
@status | 0
