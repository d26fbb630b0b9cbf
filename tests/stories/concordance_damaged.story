# Records that are not as they should be.
@write CONCORD.DAT | "only word" | "next","Genesis 1 1" | "three","Jude 1 1","more" | "a","Ruth 1 1"
click Form1.cc1
  lstc: "A", "GENESIS 1 1", "JUDE 1 1", "ONLY WORD"
click Form1.lstc "GENESIS 1 1"
  lstc2: "three"
click Form1.lstc2 "three"
  lblbk "Genesis"
click Form1.lstc2
  lblc "1"
# References without a chapter and a verse change nothing.
@write CONCORD.DAT | "a","7 8" | "a","Jude" | "a","Jude 1" | "a","Jude 1 1"
click Form1.cc1
click Form1.lstc "A"
click Form1.lstc2 "Jude"
click Form1.lstc2 "Jude 1"
  lblbk "Genesis"
click Form1.lstc2 "Jude 1 1"
  lblbk "Jude"
# The character in front of the chapter is no part of the name, whatever it is.
@write CONCORD.DAT | "a","Ésaïe3 4"
click Form1.lstc "A"
click Form1.lstc2 0
  lblbk "Ésaï"

# A record that the end of the file cuts off: nothing traps it.
@write CONCORD.DAT "\"a\",\"Jude 1 1\"\r\n\"b\""
click Form1.cc1 | run-time error 62 "Input past end of file" | end

# A missing file: opening the panel fails untrapped, adding makes it.
@data small
@delete CONCORD.DAT
click Form1.Command16
type Form1.txts "river"
click Form1.Command22 | beep | beep
click Form1.cmdadd | message "RIVER has been added to the Concordance" "Lectern 2"
@show CONCORD.DAT | "river","Genesis 1 1" | "river","Genesis 1 2"
@delete CONCORD.DAT
@folder CONCORD.DAT
click Form1.cmdadd
  | message "An error (75 ) has occured during proccessing your request. Click HELP, for information on possible sources causing the error. " "Lectern 2"
  | beep
@delete CONCORD.DAT
click Form1.Command20
click Form1.Command8 | run-time error 53 "File not found" | end
