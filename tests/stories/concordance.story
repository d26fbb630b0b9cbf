# A reader browses the concordance, opens a verse, adds what a search found, and takes a word out.
@write CONCORD.DAT
  | "river","Genesis 1 1"
  | "river","1 Samuel 1 2"
  | "Lamp","Psalms 3 1"
  | "river","Psalms 1 1"
  | "lamp","Genesis 3 1"
  | "house by the","Jude 1 1"
click Form1.Command8
  frmc shown, Command16 enabled
  lstc: "HOUSE BY THE", "LAMP", "LAMP", "RIVER", "RIVER"
  text6 "0", lblw "click on word"
# Two entries of one word, apart in the file, list the same verses, in any case.
click Form1.lstc 3
  lstc2: "Genesis 1 1", "1 Samuel 1 2", "Psalms 1 1"
  text6 "3", lblw "RIVER"
click Form1.lstc "LAMP"
  lstc2: "Psalms 3 1", "Genesis 3 1"
click Form1.lstc "RIVER"
click Form1.lstc2 "1 Samuel 1 2"
  lblbook "1 Samuel", lblbk "1 Samuel", lblc "1"
# The chapter bar keeps the range of the book before.
  scr.Max 3
click Form1.lstc2 "Genesis 1 1"
set Form1.rtxt.SelStart = 42
  rtxt.SelColor 16711680
dblclick Form1.lstc "LAMP"

# The other version has a concordance of its own; a word listed before may have no verse there.
@write CONCORD2.DAT | "dawn","Genesis 1 1"
click Form1.optn
click Form1.lstc "LAMP"
  lstc2.ListCount 0, text6 "0"
click Form1.optk

# Closing lands on chapter 1 and frees the tool buttons, whatever had locked them.
scroll Form1.scr 2
click Form1.Command9
  lblc "1", lstc.ListCount 0, lstc2.ListCount 0

# Adding: as it was typed, at the end of the file, without a look at what is there.
click Form1.Command16
click Form1.op1
type Form1.txts "Peace kept"
click Form1.Command22
run | ran 66 ticks
click Form1.cmdadd | message "PEACE KEPT has been added to the Concordance" "Lectern 2"
click Form1.cmdadd | message "PEACE KEPT has been added to the Concordance" "Lectern 2"
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
run | ran 66 ticks
click Form1.cmdadd | message "NOWHERE TO BE FOUND has been added to the Concordance" "Lectern 2"

# Deleting takes every record of the word in any case, keeps the last version, and names the word that was
# loaded last. ODDITY(deletion-names-another)
click Form1.cc1
click Form1.lstc "LAMP"
click Form1.Command21
  | message "Peace kept has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
  Command22.MousePointer 0
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
  lstc: "HOUSE BY THE", "PEACE KEPT", "RIVER"
  lstc2.ListCount 0, lblw "LAMP"
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
@write concord1.dat | "left","Jude 1 1"
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
@write CONCORD.DAT | "one","Jude 1 1"
click Form1.cc1
click Form1.lstc "ONE"
click Form1.Command21
  | message " has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
@show CONCORD.DAT | empty
