# The start: window, folders, settings, lists. What is missing keeps nothing from starting.
screen 30000 20000
fonts "Arial" "Georgia"
  Form1 shown, Left 8070, Top 4645, Width 13860, Dir3.Path "DATA\\KJV", Dirpics.Path "DATA"
  Combo1: "Arial", "Georgia"
  Combo3: "Regular", "Italic", "Bold", "Bold Italic"
  LBLMRK(0) "", Picture2.Left 800, picp hidden
@show codex.cfg | "Georgia","12","Regular"

# An empty folder.
@data empty
  lst.ListCount 66, lst.List(21) "Song of Solomon", lblbk "Genesis", lblc "1", rtxt ""
@show codex.cfg | "&HFF0000","&H80000005","Arial","10"
@files . | codex.cfg | tmppics2.dat

# Settings of 0 to 2 bytes get the default record behind them; three bytes stand.
@write codex.cfg "ab"
@restart
start
@show codex.cfg | ab"&HFF0000","&H80000005","Arial","10"
@write codex.cfg "abc"
@restart
start
@show codex.cfg | abc (no line end)
