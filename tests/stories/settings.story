# A reader's eyes are tired: a larger font from the Options menu, a warmer window, and the same again tomorrow.
fonts "Arial" "Georgia" "Times New Roman"
click Form1.oo11
  Picture23 shown, Command3 enabled, Combo1 "Georgia", rtxt.FontName "Georgia", lblf(0).FontSize 12

# A pick shows at once, on the samples and on both panes; typing alone does not.
set Form1.Command22.MousePointer = 11
choose Form1.Combo1 "Times New Roman"
  Command22.MousePointer 0
choose Form1.Combo2 "18"
choose Form1.Combo3 "Bold Italic"
  lblf(1).FontName "Times New Roman", lblf(1).FontSize 18, lblf(1).FontItalic True, rtxt.FontName "Times New Roman"
  rtxt.FontSize 18, rtxt.FontBold True, RTXT2.FontItalic True
type Form1.Combo2 "13.5"
  rtxt.FontSize 18
choose Form1.Combo3 "Regular"
  rtxt.FontSize 13.5, rtxt.FontBold False, RTXT2.FontSize 13.5

# Only Save goes into the file; Close takes nothing back.
@show codex.cfg | "Georgia","12","Regular"
click Form1.Command36
@show codex.cfg | "Times New Roman","13.5","Regular"
@show backup/codex.cfg | "Georgia","12","Regular"
choose Form1.Combo3 "Bold"
click Form1.Command24
  Picture23 hidden, rtxt.FontBold True
@restart
  Combo1 "Times New Roman", rtxt.FontSize 13.5, rtxt.FontBold False

# Front colours the panels, and Back the window; neither is there at the next start.
# ODDITY(front-colour)
click Form1.oo11
click Form1.Picture31
  Picture23.BackColor 33023, frmc.BackColor 33023, frmd.BackColor 33023, Picture17.BackColor 33023
  frmhelp.BackColor 33023, frms.BackColor 33023, frmscale.BackColor 33023, FRMMARK.BackColor 33023
  Picture1.BackColor -2147483633, BackColor -2147483633
click Form1.Option3
click Form1.Picture25
  BackColor 12632256, Picture23.BackColor 33023
click Form1.Picture35
  BackColor -2147483643
@restart
  Picture23.BackColor -2147483633

# ODDITY(close-unlocks): a tool button that another panel holds locked is free when this one closes.
set Form1.Command3.Enabled = False
click Form1.oo11
  Command3 disabled
click Form1.Command24
  Command3 enabled

# A size that is no number, or none that a font can have, leaves the panes at theirs while the reader tries on.
click Form1.oo11
type Form1.Combo2 "large"
choose Form1.Combo1 "Arial"
  rtxt.FontName "Arial", rtxt.FontSize 13.5, lblf(0).FontSize 13.5
type Form1.Combo2 "0"
choose Form1.Combo3 "Italic"
  rtxt.FontItalic True, RTXT2.FontItalic True, rtxt.FontSize 13.5

# Saved, it is the end; the file has it all the same. The next start stops at it, and the style behind it is
# not tried; the samples look after themselves.
type Form1.Combo2 "5000"
click Form1.Command36 | run-time error 380 "Invalid property value" | end
@show codex.cfg | "Arial","5000","Italic"
@restart
  Combo2 "5000", rtxt.FontName "Arial", rtxt.FontItalic False, lblf(0).FontItalic True
click Form1.oo11
type Form1.Combo2 "large"
click Form1.Command36 | run-time error 13 "Type mismatch" | end

# There is nothing to replace: Save deletes before it writes.
@restart
start
@delete codex.cfg
click Form1.oo11
click Form1.Command36 | run-time error 53 "File not found" | end
@show codex.cfg | missing

# ODDITY(default-settings-misread): the first start in an empty folder.
@data empty
  Combo1 "&HFF0000", Combo2 "&H80000005", Combo3 "Arial", rtxt.FontName "&HFF0000", RTXT2.FontName "&HFF0000"
  rtxt.FontSize 0
click Form1.oo11
choose Form1.Combo1 "Georgia"
click Form1.Command36
@show codex.cfg | "Georgia","11","Regular"

# An older file: its font stands where the style is read, and the style stays.
@write codex.cfg | "Arial","10","Verdana","12"
@restart
set Form1.rtxt.FontBold = True
click Form1.oo11
click Form1.Command36
  rtxt.FontBold True, rtxt.FontName "Arial"
@show codex.cfg | "Arial","10","Verdana"

# Two fields are too few: nothing is applied, and the start goes on.
@write codex.cfg | "Arial","10"
@restart
  Combo1 "", lblbk "Genesis"
