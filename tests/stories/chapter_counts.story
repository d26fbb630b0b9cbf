# Whoever prepares the data counts the chapters; the reader's bar follows the counts.
@data empty
@write Genesis.txt "Chapter 1\r\n1   a\r\nChapter 2\r\nchapter 3\r\n"
click! Form1.Command12
| run-time error 53 "File not found"
| end
@show bookschap.txt
| "Genesis",2

@data small
@write bookschap.txt "\"GENESIS\",7\r\n\"Exodus\",2\r\n\"Genesis\",3\r\n"
get Form1.scr.Max
| Form1.scr.Max = 3
set Form1.lblbk.Caption = "genesis"
get Form1.scr.Max
| Form1.scr.Max = 3

# A missing field lets the record run on into the next, and every record behind it is out of step.
@write bookschap.txt "\"Genesis\"\r\n\"Exodus\",2\r\n\"Jude\",1\r\n"
click Form1.lst "Exodus"
get Form1.scr.Max
| Form1.scr.Max = 3
click Form1.lst "Jude"
get Form1.scr.Max
| Form1.scr.Max = 3

# A click on the book that is open reads no counts: its name is no change.
@write bookschap.txt "\"Jude\",9\r\n"
click Form1.lst "Jude"
get Form1.scr.Max
| Form1.scr.Max = 3

# Letters count as none, and the bar has nowhere to go; a count that is too large changes nothing; a quote
# that is never closed takes the rest of the file.
@write bookschap.txt "\"Jude\",many\r\n\"Ruth\",99999\r\n\"Exodus\",2\r\n\"Psalms,4\r\n\"Genesis\",3\r\n"
click Form1.lst "Exodus"
get Form1.scr.Max
| Form1.scr.Max = 2
click Form1.lst "Ruth"
get Form1.scr.Max
| Form1.scr.Max = 2
click Form1.lst "Jude"
get Form1.scr.Max
| Form1.scr.Max = 0
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A short letter to the house by the river.       \r\n"
click Form1.lst "Psalms"
get Form1.scr.Max
| Form1.scr.Max = 0
click Form1.lst "Genesis"
get Form1.scr.Max
| Form1.scr.Max = 0

# No counts at all: the bar keeps the range of the book before.
@delete bookschap.txt
click Form1.lst "Genesis"
get Form1.scr.Max
| Form1.scr.Max = 0
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   Morning came over the valley, and the river was bright.       \r\n2   The shepherd counted his flock by the river.       \r\n3   And grace was upon the valley.       \r\nChapter 2\r\n"
