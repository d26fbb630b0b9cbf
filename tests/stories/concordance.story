# A reader browses the concordance, opens a verse, adds what a search found, and takes a word out.
@write CONCORD.DAT
  | "river","Genesis 1 1" | "river","1 Samuel 1 2" | "Lamp","Psalms 3 1" | "river","Psalms 1 1" | "lamp","Genesis 3 1"
  | "house by the","Jude 1 1"
click Form1.Command8
  frmc shown, Command16 enabled, text6 "0", lblw "click on word"
  lstc: "HOUSE BY THE", "LAMP", "LAMP", "RIVER", "RIVER"
# Two entries of one word, apart in the file, list the same verses, in any case.
click Form1.lstc 3
  lstc2: "Genesis 1 1", "1 Samuel 1 2", "Psalms 1 1"
  text6 "3", lblw "RIVER"
click Form1.lstc "LAMP"
  lstc2: "Psalms 3 1", "Genesis 3 1"
# A verse is opened; the chapter bar keeps the range of the book before.
click Form1.lstc "RIVER"; click Form1.lstc2 "1 Samuel 1 2"
  lblbook "1 Samuel", lblbk "1 Samuel", lblc "1", scr.Max 3
click Form1.lstc2 "Genesis 1 1"; set Form1.rtxt.SelStart = 42
  rtxt.SelColor 16711680
dblclick Form1.lstc "LAMP"

# The other version has a concordance of its own; a word listed before may have no verse there.
@write CONCORD2.DAT | "dawn","Genesis 1 1"
click Form1.optn; click Form1.lstc "LAMP"
  lstc2 empty, text6 "0"
click Form1.optk

# Closing lands on chapter 1.
scroll Form1.scr 2; click Form1.Command9
  lblc "1", lstc empty, lstc2 empty

# Add writes the term as it was typed, at the end of the file, even if it is there already.
click Form1.Command16; click Form1.op1; type Form1.txts "Peace kept"; click Form1.Command22
run | ran 66 ticks
click Form1.cmdadd | message "PEACE KEPT has been added to the Concordance" "Lectern 2"
click Form1.cmdadd | message "PEACE KEPT has been added to the Concordance" "Lectern 2"
@changes CONCORD.DAT | +7 "Peace kept","Genesis 3 3" | +8 "Peace kept","Genesis 3 3"
type Form1.txts "nowhere to be found"; click Form1.Command22; run | ran 66 ticks
click Form1.cmdadd | message "NOWHERE TO BE FOUND has been added to the Concordance" "Lectern 2"
@changes CONCORD.DAT | unchanged

# Deleting takes every record of the word in any case, keeps the last version, and names the word that was
# loaded last. ODDITY(deletion-names-another)
click Form1.cc1; click Form1.lstc "LAMP"; click Form1.Command21
  | message "Peace kept has been removed from the Concordance. You can add words to Concordance with search feature." "Lectern 2"
  Command22.MousePointer 0, lstc2 empty, lblw "LAMP"
  lstc: "HOUSE BY THE", "PEACE KEPT", "RIVER"
@changes backup/CONCORD.DAT CONCORD.DAT | unchanged
@changes CONCORD.DAT | -3 "Lamp","Psalms 3 1" | -5 "lamp","Genesis 3 1"
# With nothing selected the file is rewritten as it was.
click Form1.Command21 | message "Peace kept has been removed…" "Lectern 2"
@changes CONCORD.DAT | unchanged
# What an interrupted deletion left in the work file comes first.
@write concord1.dat | "left","Jude 1 1"
click Form1.lstc "PEACE KEPT"; click Form1.Command21 | message "house by the has been removed…" "Lectern 2"
@changes CONCORD.DAT | +1 "left","Jude 1 1" | -5 "Peace kept","Genesis 3 3" | -6 "Peace kept","Genesis 3 3"

# The only word of a file.
@write CONCORD.DAT | "one","Jude 1 1"
click Form1.cc1; click Form1.lstc "ONE"; click Form1.Command21 | message " has been removed…" "Lectern 2"
@show CONCORD.DAT | empty

# In a damaged file a record takes what it lacks from the next one.
@write CONCORD.DAT | "only word" | "next","Genesis 1 1" | "three","Jude 1 1","more" | "a","Ruth 1 1"
click Form1.cc1
  lstc: "A", "GENESIS 1 1", "JUDE 1 1", "ONLY WORD"
click Form1.lstc "GENESIS 1 1"
  lstc2: "three"
click Form1.lstc2 "three"; click Form1.lstc2
  lblbk "Genesis", lblc "1"
# References without a chapter and a verse change nothing. The character in front of the chapter is no part of the
# name, whatever it is.
@write CONCORD.DAT | "a","7 8" | "a","Jude" | "a","Jude 1" | "a","Jude 1 1" | "a","Ésaïe3 4"
click Form1.cc1; click Form1.lstc "A"; click Form1.lstc2 "Jude"; click Form1.lstc2 "Jude 1"
  lblbk "Genesis"
click Form1.lstc2 "Jude 1 1"
  lblbk "Jude"
click Form1.lstc2 "Ésaïe3 4"
  lblbk "Ésaï"

# A record that the end of the file cuts off, and a missing file, end the program; Add makes the file, or reports
# that it cannot.
@write CONCORD.DAT "\"a\",\"Jude 1 1\"\r\n\"b\""
click Form1.cc1 | run-time error 62 "Input past end of file" | end
@data small; click Form1.Command16; type Form1.txts "river"; click Form1.Command22 | beep | beep
click Form1.cmdadd | message "RIVER has been added to the Concordance" "Lectern 2"
@show CONCORD.DAT | "river","Genesis 1 1" | "river","Genesis 1 2"
@delete CONCORD.DAT; @folder CONCORD.DAT
click Form1.cmdadd | message "An error (75 ) has occured…" "Lectern 2" | beep
@delete CONCORD.DAT; click Form1.Command20; click Form1.Command8 | run-time error 53 "File not found" | end
