# The start: window, folders, settings, lists. What is missing keeps nothing from starting.
screen 30000 20000
fonts "Arial" "Georgia"
get Form1.Visible
| Form1.Visible = True
get Form1.Left
| Form1.Left = 8070
get Form1.Top
| Form1.Top = 4645
get Form1.Width
| Form1.Width = 13860
get Form1.Dir3.Path
| Form1.Dir3.Path = "DATA\\KJV"
get Form1.Dirpics.Path
| Form1.Dirpics.Path = "DATA"
items Form1.Combo1
| Form1.Combo1: 2 items
|   "Arial"
|   "Georgia"
items Form1.Combo3
| Form1.Combo3: 4 items
|   "Regular"
|   "Italic"
|   "Bold"
|   "Bold Italic"
get Form1.LBLMRK(0).Caption
| Form1.LBLMRK(0).Caption = ""
get Form1.Picture2.Left
| Form1.Picture2.Left = 800
get Form1.picp.Visible
| Form1.picp.Visible = False
@show codex.cfg
| "Georgia","12","Regular"

# An empty folder.
@data empty
get Form1.lst.ListCount
| Form1.lst.ListCount = 66
get Form1.lst.List(21)
| Form1.lst.List(21) = "Song of Solomon"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Genesis"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.rtxt.Text
| Form1.rtxt.Text = ""
@show codex.cfg
| "&HFF0000","&H80000005","Arial","10"
@files .
| codex.cfg
| tmppics2.dat

# Settings of 0 to 2 bytes get the default record behind them; three bytes stand.
@write codex.cfg "ab"
@restart
start
@show codex.cfg
| ab"&HFF0000","&H80000005","Arial","10"
@write codex.cfg "abc"
@restart
start
@show codex.cfg
| abc (no line end)
