# The person who prepares the data has a concordance made from a list of words.
@write conc.txt | river | Lamp | nowhere | grace
click! Form1.Command27 | run-time error 53 "File not found" | end
@restart
@write CONCORD.DAT "old"
click! Form1.Command27
  Timer2 enabled, pbar.Max 65
tick
  List2.ListCount 4, lbln "0", Label32 "-1 of 0", tmrb enabled, wrd "river", pbar2 2
run | beep | ran 265 ticks
  lbln "4", wrd "", txts "", pbar2.Max 3, pbar2 2, Timer2 disabled
# ODDITY(last-word-twice)
@show CONCORD.DAT
  | "river","Genesis 1 1" | "river","Genesis 1 2" | "river","Exodus 1 2" | "river","Psalms 1 1" | "river","Jude 1 1"
  | "Lamp","Genesis 3 1" | "Lamp","Genesis 3 2" | "Lamp","1 Samuel 1 1" | "Lamp","Psalms 3 1"
  | "grace","Genesis 1 3" | "grace","Genesis 3 3" | "grace","Psalms 3 1"
  | "grace","Genesis 1 3" | "grace","Genesis 3 3" | "grace","Psalms 3 1"
@show backup/CONCORD.DAT | old (no line end)

# Without the caption's seven characters the scan now comes to the end of each line.
@write KJV/Ruth.txt "Chapter 1\r\n1   the end"
click Form1.op1; type Form1.txts "end"; click Form1.Command22; run | ran 66 ticks
  lsts: "Ruth 1 1"

# A term in the second box has to stand in every verse too; an empty line repeats the results of the word before it.
@restart
@write conc.txt
  | lamp
  |
@write CONCORD.DAT ""
click Form1.cc3; type Form1.txts2 "grace"; click! Form1.Command27; run | beep | ran 134 ticks
@show CONCORD.DAT | "lamp","Psalms 3 1" | "","Psalms 3 1" | "","Psalms 3 1"

# Cancelled: the scan that runs goes on to its end.
@restart
@write conc.txt | river | lamp
click! Form1.Command27; run 30 | ran 30 ticks
click! Form1.Command23; run | ran 38 ticks
@show CONCORD.DAT | missing

# The second version's file, cut back to its true end.
@write CONCORD2.DAT
  | "Zeal","John 2 17" | "Zion","Hebrews 12 22" | "Zion","1 Peter 2 6" | "Zion","Hebrews 12 22" | "Zion","1 Peter 2 6"
click! Form1.Command18
@show CONCORD22.DAT | "Zeal","John 2 17" | "Zion","Hebrews 12 22" | "Zion","1 Peter 2 6"
click! Form1.Command18
@changes CONCORD22.DAT | unchanged

# A click on a word of the list looks it up among the bookmarks of the older form.
@write BKMK.DAT | "river","Jude","1" | "lamp","Ruth","1"
click! Form1.List2 "lamp"
  Text2 "lamp", LBLMRK(1) "Ruth", lblbk "Ruth"
@write BKMK.DAT ""
click! Form1.List2 "river"
  lblbk ""

# The older builder reads every book under its short name from the data folder; what it had written when one is
# missing stays.
@data empty
@write conc.txt | grace | song
@write concord.dat "old"
@write Genesis.txt
  | Chapter 1 | 1   of grace and peace | 2   graceful grace of it
  |
  | 3   grace | Song of it | 4   a song of it
click! Form1.Command13 | run-time error 53 "File not found" | end
@show concord.dat | " GRACE","Genesis",1,1
