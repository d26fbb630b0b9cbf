# A reader browses the concordance, opens a verse, adds what a search found, and takes a word out.
@write CONCORD.DAT "\"river\",\"Genesis 1 1\"\r\n\"river\",\"1 Samuel 1 2\"\r\n\"Lamp\",\"Psalms 3 1\"\r\n\"river\",\"Psalms 1 1\"\r\n\"lamp\",\"Genesis 3 1\"\r\n\"house by the\",\"Jude 1 1\"\r\n"
click Form1.Command8
get Form1.frmc.Visible
| Form1.frmc.Visible = True
get Form1.Command16.Enabled
| Form1.Command16.Enabled = True
items Form1.lstc
| Form1.lstc: 5 items
|   "HOUSE BY THE"
|   "LAMP"
|   "LAMP"
|   "RIVER"
|   "RIVER"
get Form1.text6.Caption
| Form1.text6.Caption = "0"
get Form1.lblw.Caption
| Form1.lblw.Caption = "click on word"
# Two entries of one word, apart in the file, list the same verses, in any case.
click Form1.lstc 3
items Form1.lstc2
| Form1.lstc2: 3 items
|   "Genesis 1 1"
|   "1 Samuel 1 2"
|   "Psalms 1 1"
get Form1.text6.Caption
| Form1.text6.Caption = "3"
get Form1.lblw.Caption
| Form1.lblw.Caption = "RIVER"
click Form1.lstc "LAMP"
items Form1.lstc2
| Form1.lstc2: 2 items
|   "Psalms 3 1"
|   "Genesis 3 1"
click Form1.lstc "RIVER"
click Form1.lstc2 "1 Samuel 1 2"
get Form1.lblbook.Caption
| Form1.lblbook.Caption = "1 Samuel"
get Form1.lblbk.Caption
| Form1.lblbk.Caption = "1 Samuel"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
# The chapter bar keeps the range of the book before.
get Form1.scr.Max
| Form1.scr.Max = 3
click Form1.lstc2 "Genesis 1 1"
set Form1.rtxt.SelStart = 42
get Form1.rtxt.SelColor
| Form1.rtxt.SelColor = 16711680
dblclick Form1.lstc "LAMP"

# The other version has a concordance of its own; a word listed before may have no verse there.
@write CONCORD2.DAT "\"dawn\",\"Genesis 1 1\"\r\n"
click Form1.optn
click Form1.lstc "LAMP"
get Form1.lstc2.ListCount
| Form1.lstc2.ListCount = 0
get Form1.text6.Caption
| Form1.text6.Caption = "0"
click Form1.optk

# Closing lands on chapter 1 and frees the tool buttons, whatever had locked them.
scroll Form1.scr 2
click Form1.Command9
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.lstc.ListCount
| Form1.lstc.ListCount = 0
get Form1.lstc2.ListCount
| Form1.lstc2.ListCount = 0

# Adding: as it was typed, at the end of the file, without a look at what is there.
click Form1.Command16
click Form1.op1
type Form1.txts "Peace kept"
click Form1.Command22
run
| ran 66 ticks
click Form1.cmdadd
| message "PEACE KEPT has been added to the Concordance" "Lectern 2"
click Form1.cmdadd
| message "PEACE KEPT has been added to the Concordance" "Lectern 2"
@show CONCORD.DAT
| "river","Genesis 1 1"
| "river","1 Samuel 1 2"
| "Lamp","Psalms 3 1"
| "river","Psalms 1 1"
| "lamp","Genesis 3 1"
| "house by the","Jude 1 1"
| "Peace kept","Genesis 3 3"
| "Peace kept","Genesis 3 3"
type Form1.txts "nowhere to be found"
click Form1.Command22
run
| ran 66 ticks
click Form1.cmdadd
| message "NOWHERE TO BE FOUND has been added to the Concordance" "Lectern 2"

# Deleting takes every record of the word in any case, keeps the last version, and names the word that was
# loaded last. ODDITY(deletion-names-another)
click Form1.cc1
click Form1.lstc "LAMP"
click Form1.Command21
| message "Peace kept has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
get Form1.Command22.MousePointer
| Form1.Command22.MousePointer = 0
@show CONCORD.DAT
| "river","Genesis 1 1"
| "river","1 Samuel 1 2"
| "river","Psalms 1 1"
| "house by the","Jude 1 1"
| "Peace kept","Genesis 3 3"
| "Peace kept","Genesis 3 3"
@show backup/CONCORD.DAT
| "river","Genesis 1 1"
| "river","1 Samuel 1 2"
| "Lamp","Psalms 3 1"
| "river","Psalms 1 1"
| "lamp","Genesis 3 1"
| "house by the","Jude 1 1"
| "Peace kept","Genesis 3 3"
| "Peace kept","Genesis 3 3"
items Form1.lstc
| Form1.lstc: 3 items
|   "HOUSE BY THE"
|   "PEACE KEPT"
|   "RIVER"
get Form1.lstc2.ListCount
| Form1.lstc2.ListCount = 0
get Form1.lblw.Caption
| Form1.lblw.Caption = "LAMP"
# With nothing selected the file is written anew as it was.
click Form1.Command21
| message "Peace kept has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
@show CONCORD.DAT
| "river","Genesis 1 1"
| "river","1 Samuel 1 2"
| "river","Psalms 1 1"
| "house by the","Jude 1 1"
| "Peace kept","Genesis 3 3"
| "Peace kept","Genesis 3 3"
# What a broken run left in the work file stays at the head.
@write concord1.dat "\"left\",\"Jude 1 1\"\r\n"
click Form1.lstc "PEACE KEPT"
click Form1.Command21
| message "house by the has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
@show CONCORD.DAT
| "left","Jude 1 1"
| "river","Genesis 1 1"
| "river","1 Samuel 1 2"
| "river","Psalms 1 1"
| "house by the","Jude 1 1"

# The only word of a file.
@write CONCORD.DAT "\"one\",\"Jude 1 1\"\r\n"
click Form1.cc1
click Form1.lstc "ONE"
click Form1.Command21
| message " has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
@show CONCORD.DAT
