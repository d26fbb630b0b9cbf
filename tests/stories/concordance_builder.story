# Whoever prepares the data has a concordance made from a list of words.
@write conc.txt "river\r\nLamp\r\nnowhere\r\ngrace\r\n"
click! Form1.Command27
| run-time error 53 "File not found"
| end
@restart
@write CONCORD.DAT "old"
click! Form1.Command27
get Form1.Timer2.Enabled
| Form1.Timer2.Enabled = True
get Form1.pbar.Max
| Form1.pbar.Max = 65
tick
get Form1.List2.ListCount
| Form1.List2.ListCount = 4
get Form1.lbln.Caption
| Form1.lbln.Caption = "0"
get Form1.Label32.Caption
| Form1.Label32.Caption = "-1 of 0"
get Form1.tmrb.Enabled
| Form1.tmrb.Enabled = True
get Form1.wrd.Caption
| Form1.wrd.Caption = "river"
run
| beep
| ran 265 ticks
# ODDITY(last-word-twice)
@show CONCORD.DAT
| "river","Genesis 1 1"
| "river","Genesis 1 2"
| "river","Exodus 1 2"
| "river","Psalms 1 1"
| "river","Jude 1 1"
| "Lamp","Genesis 3 1"
| "Lamp","Genesis 3 2"
| "Lamp","1 Samuel 1 1"
| "Lamp","Psalms 3 1"
| "grace","Genesis 1 3"
| "grace","Genesis 3 3"
| "grace","Psalms 3 1"
| "grace","Genesis 1 3"
| "grace","Genesis 3 3"
| "grace","Psalms 3 1"
@show backup/CONCORD.DAT
| old (no line end)
get Form1.lbln.Caption
| Form1.lbln.Caption = "4"
get Form1.wrd.Caption
| Form1.wrd.Caption = ""
get Form1.txts.Text
| Form1.txts.Text = ""
get Form1.pbar2.Max
| Form1.pbar2.Max = 3
get Form1.pbar2.Value
| Form1.pbar2.Value = 2
get Form1.Timer2.Enabled
| Form1.Timer2.Enabled = False

# Without the caption's seven characters the scan now comes to the end of each line.
@write KJV/Ruth.txt "Chapter 1\r\n1   the end"
click Form1.op1
type Form1.txts "end"
click Form1.Command22
run
| ran 66 ticks
items Form1.lsts
| Form1.lsts: 1 items
|   "Ruth 1 1"

# A term left in the second box is wanted of every verse; an empty line repeats the results of the word before it.
@restart
@write conc.txt "lamp\r\n\r\n"
@write CONCORD.DAT ""
click Form1.cc3
type Form1.txts2 "grace"
click! Form1.Command27
run
| beep
| ran 134 ticks
@show CONCORD.DAT
| "lamp","Psalms 3 1"
| "","Psalms 3 1"
| "","Psalms 3 1"

# Cancelled: the scan that runs goes on to its end.
@restart
@write conc.txt "river\r\nlamp\r\n"
click! Form1.Command27
run 30
| ran 30 ticks
click! Form1.Command23
run
| ran 38 ticks
@show CONCORD.DAT
| missing

# The second version's file, cut back to its true end.
@write CONCORD2.DAT "\"Zeal\",\"John 2 17\"\r\n\"Zion\",\"Hebrews 12 22\"\r\n\"Zion\",\"1 Peter 2 6\"\r\n\"Zion\",\"Hebrews 12 22\"\r\n\"Zion\",\"1 Peter 2 6\"\r\n"
click! Form1.Command18
@show CONCORD22.DAT
| "Zeal","John 2 17"
| "Zion","Hebrews 12 22"
| "Zion","1 Peter 2 6"
click! Form1.Command18
@show CONCORD22.DAT
| "Zeal","John 2 17"
| "Zion","Hebrews 12 22"
| "Zion","1 Peter 2 6"

# Leftover bookmarks.
@write BKMK.DAT "\"river\",\"Jude\",\"1\"\r\n\"lamp\",\"Ruth\",\"1\"\r\n"
click! Form1.List2 "lamp"
get Form1.Text2.Text
| Form1.Text2.Text = "lamp"
get Form1.LBLMRK(1).Caption
| Form1.LBLMRK(1).Caption = "Ruth"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "Ruth"
@write BKMK.DAT ""
click! Form1.List2 "river"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = ""
