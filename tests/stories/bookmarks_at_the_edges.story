# Names and files of bookmarks that are odd, and what becomes of the program where nothing traps a failure.
click Form1.xb
date 2026-11-16
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "a\"b/c\\d"
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "רות ונעמי"
click Form1.Command10 | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "Ῥούθ, ά"
  File1: "a''b'c'd.bkm", "רות ונעמי.bkm", "Ῥούθ, ά.bkm"
@show "a''b'c'd.bkm" | "a''b'c'd","Genesis","1"
@show "רות ונעמי.bkm" | "רות ונעמי","Genesis","1"
click Form1.File1 "Ῥούθ, ά.bkm"
  LBLMRK(0) "Ῥούθ, ά"

# A comma inside quotes is text; fields may stand unquoted, or on lines of their own; what lies behind the
# third is nothing.
@write "odd.bkm" | "Ruth, and Naomi",Ruth,1 | "second","Jude","1" | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10
@write "lines.bkm" "three\nExodus\n2"
@restart
click Form1.xb
click Form1.File1 "odd.bkm"
  LBLMRK(0) "Ruth, and Naomi", LBLMRK(1) "Ruth", LBLMRK(2) "1"
click Form1.File1 "lines.bkm"
click Form1.Command5
  lblbk "Exodus", lblc "2"

# A chapter that is no number, and a book that is not there: Open goes on with what it is given.
@write "lost.bkm" | lost,Nowhere,seven
@restart
click Form1.xb
click Form1.File1 "lost.bkm"
click Form1.Command5
  lblbk "Nowhere", lblc "seven", Picture1 hidden

# Too few fields, a file that went away, and a character that no file system takes end the program.
@write "short.bkm" | "only a name"
@restart
click Form1.xb
click Form1.File1 "short.bkm" | run-time error 62 "Input past end of file" | end
@restart
click Form1.xb
@delete short.bkm
click Form1.File1 "short.bkm" | run-time error 53 "File not found" | end
@restart
click Form1.xb
click Form1.File1 "odd.bkm"
@delete odd.bkm
click Form1.Command11 | run-time error 53 "File not found" | end
@restart
click Form1.xb
date 2026-11-16
click Form1.Command10
  | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "when: now"
  | run-time error 52 "Bad file name or number"
  | end
@files .
  | a''b'c'd.bkm
  | bookschap.txt
  | codex.cfg
  | lines.bkm
  | lost.bkm
  | tmppics2.dat
  | רות ונעמי.bkm
  | Ῥούθ, ά.bkm

# Update under such a name does nothing at all.
@restart
click Form1.xb
set Form1.LBLMRK(0).Caption = "when: now"
click Form1.Command6
  Picture1 shown

# A name may have 251 bytes before its ending, whatever the script, and none more.
date 2026-11-16
click Form1.Command10
  | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "רותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרות12345"
click Form1.File1 "רותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרות12345.bkm"
click Form1.Command6
click Form1.Command11
@files backup
  | רותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרות12345.bkm
click Form1.Command10
  | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "רותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרותרות123456"
  | run-time error 52 "Bad file name or number"
  | end

# A data folder that is gone: Update does nothing, New ends the program.
@restart
click Form1.xb
@delete
click Form1.Command6
date 2026-11-16
click Form1.Command10
  | input "Enter a name for bookmark" "Enter Name" "11 - 16 - 26" -> "x"
  | run-time error 76 "Path not found"
  | end
