# A rainy afternoon with the question game.
@write codex.trv
  | "Who gathered grain?","Ruth (Ruth 1:1)"
  | "What was lit?","A lamp (Genesis 3:1)"
  | "Who slept, and woke?","A boy (1 Samuel 1:1)"
  | "What was lit?","A fire"
set Form1.picp.Visible = True; click Form1.Command2
  Picture17 shown, picp hidden, Command2 disabled, Label25 "Press Question to begin"

# Before a question there is no answer.
click Form1.Command31
  Label26 ""

# Four questions: a number is four times the random one, less 1, a half going to the even neighbour. The first
# two are drawn twice and compared with nothing.
random 0.9 0.5; click Form1.Command29
  Label25 "Who gathered grain?", Command29.MousePointer 0
  List3: "1"
click Form1.Command31
  Label26 "Ruth (Ruth 1:1)"
random 0.9 0.875; click Form1.Command29
  Label25 "What was lit?", Label26 ""
  List3: "1", "2"

# Of two equal questions the answer of the first is shown, whichever was asked.
# ODDITY(trivia-last-question): four times 0.125, less 1, is -0.5, which is rounded to 0.
random 0.125; click Form1.Command29
  Label25 "What was lit?"
click Form1.Command31
  Label26 "A lamp (Genesis 3:1)"

# The history is 1, 2, 0. The walk meets 2, draws 0, and goes on behind it: it meets 0, draws 3.
random 0.7 0.3 0.99; click Form1.Command29
  List3: "1", "2", "0", "3"
# ODDITY(trivia-repeats): the oldest number is never looked at, nor the next one after a second draw.
random 0.5; click Form1.Command29
  Label25 "Who gathered grain?"
random 0.3 0.7; click Form1.Command29
  List3: "1", "2", "0", "3", "1", "2"

# ODDITY(trivia-minus-one): there is no question at -1. The question stays, the file stays open, and so the next
# press fails as well, until a chapter is loaded.
random 0.1; click Form1.Command29 | message "An error (62 ) has occured…" "Lectern 2" | beep
  Label25 "What was lit?", Command29.MousePointer 0
@append codex.trv | "What flew ahead?","Birds (Exodus 2:2)" | "What was bright?","The river (Genesis 1:1)"
click Form1.Command29 | message "An error (55 ) has occured…" "Lectern 2" | beep
click Form1.lst "Ruth"; random 0.95; click Form1.Command29
  Label25 "What flew ahead?"

# Closed and opened by the menu: nothing is locked, and the history is still there.
click Form1.Command28
  Picture17 hidden, Command2 enabled
click Form1.cc4
  Picture17 shown, Command2 enabled, List3.ListCount 7

# A record with too few fields; a file with none; a file that is not there.
@write codex.trv | "Who?","Ruth" | "What?"
click Form1.Command29 | message "An error (62 ) has occured…" "Lectern 2" | beep
  Label25 "What flew ahead?"
click Form1.lst "Ruth"
@write codex.trv ""
click Form1.Command29 | message "An error (62 ) has occured…" "Lectern 2" | beep
@delete codex.trv; set Form1.List1.Visible = False; click Form1.lst "Ruth"
click Form1.Command29 | message "CONCORD.DAT missing from DATA" "Lectern 2" | beep
  List1 shown

# One question only: it comes up as number 0, or not at all.
@write codex.trv | "Who gathered grain?","Ruth (Ruth 1:1)"
@restart; click Form1.cc4; random 0 0.5; click Form1.Command29
  Label25 "Who gathered grain?"
  List3: "0"
random 0.9 0.49; click Form1.Command29 | message "An error (62 ) has occured…" "Lectern 2" | beep

# The file is still open, which ends the program when the answer is asked for.
click Form1.Command31 | run-time error 55 "File already open" | end
