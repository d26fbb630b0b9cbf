# Whoever prepares the data counts the chapters; the reader's bar follows the counts.
@data empty
@write Genesis.txt | Chapter 1 | 1   a | Chapter 2 | chapter 3
click! Form1.Command12 | run-time error 53 "File not found" | end
@show bookschap.txt | "Genesis",2

@data small
@write bookschap.txt | "GENESIS",7 | "Exodus",2 | "Genesis",3
  scr.Max 3
set Form1.lblbk.Caption = "genesis"
  scr.Max 3

# A missing field lets the record run on into the next, and every record behind it is out of step.
@write bookschap.txt | "Genesis" | "Exodus",2 | "Jude",1
click Form1.lst "Exodus"
  scr.Max 3
click Form1.lst "Jude"
  scr.Max 3

# A click on the book that is open reads no counts: its name is no change.
@write bookschap.txt | "Jude",9
click Form1.lst "Jude"
  scr.Max 3

# Letters count as none, and the bar has nowhere to go; a count that is too large changes nothing; a quote
# that is never closed takes the rest of the file.
@write bookschap.txt
  | "Jude",many
  | "Ruth",99999
  | "Exodus",2
  | "Psalms,4
  | "Genesis",3
click Form1.lst "Exodus"
  scr.Max 2
click Form1.lst "Ruth"
  scr.Max 2
click Form1.lst "Jude"
  scr.Max 0, lblc "1", rtxt "1   A short letter to the house by the river.       \r\n"
click Form1.lst "Psalms"
  scr.Max 0
click Form1.lst "Genesis"
  scr.Max 0

# No counts at all: the bar keeps the range of the book before.
@delete bookschap.txt
click Form1.lst "Genesis"
  scr.Max 0
  rtxt: "1   Morning came over the valley, and the river was bright.       ",
    "2   The shepherd counted his flock by the river.       ", "3   And grace was upon the valley.       ", "Chapter 2"
