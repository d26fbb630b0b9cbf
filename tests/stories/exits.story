# The three ways out, and what each leaves of the settings.
set Form1.Combo1.Text = "Verdana"
set Form1.Combo2.Text = "14"
set Form1.Combo3.Text = "Bold"
click Form1.Command1 | end
get Form1.lblc.Caption | ended
@show codex.cfg | "Verdana","14","Bold"
@show backup/codex.cfg | "Georgia","12","Regular"

@restart
click Form1.oo12
click Form1.Command1 | end
@show codex.cfg | "Verdana","14","Bold"

@restart
close Form1 | end
@show codex.cfg | "Verdana","14","Bold"

# ODDITY(menu-exit-loses-settings)
@restart
click Form1.xx | run-time error 424 "Object required" | end
@show codex.cfg | empty
@show backup/codex.cfg | "Verdana","14","Bold"

# The next start gives the empty file its default record.
@restart
start
@show codex.cfg | "&HFF0000","&H80000005","Arial","10"
click Form1.oo12
click Form1.xx | end

# No file to delete: the menu's exit fails before it makes one.
@restart
start
@delete codex.cfg
click Form1.xx | run-time error 53 "File not found" | end
@show codex.cfg | missing
@status | 0
