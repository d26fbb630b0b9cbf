@data gallery
# A book's text from elsewhere is turned into a book file.
set Form1.RTB1.Text = "too short by 1 char"; click! Form1.Command33 | message "SELECT OPTION" "Lectern 2"
@changes KJV | unchanged
set Form1.RTB1.Text = "From a sender\r\nCodex, King James Version\r\n\r\nRuth\r\n[1]In the days\r\n[2]the name\r\n[3]\r\nthe rest\r\nan odd line\r\n\r\n[1]And she had a kinsman\r\n[12]\r\nthat stayed"
set Form1.Dir2.Path = "KJV"
  File2.Path "KJV"
click! Form1.Command33
  NME "Ruth"
  RTB1 ""
  RTB2: "Ruth", "Chapter 1", "1.In the days", "2.the name", "3.the rest", "Chapter 2", "1.And she had a kinsman", "12.that stayed"
  File2: "1 John.txt", "Exodus.txt", "Genesis.txt", "John.txt", "Jude.txt", "Psalms.txt", "Ruth.TXT"
@show KJV/Ruth.TXT | Ruth | Chapter 1 | 1.In the days | 2.the name | 3.the rest | Chapter 2 | 1.And she had a kinsman | 12.that stayed
@changes KJV | +7 Ruth.TXT

# The reader reads it.
click Form1.lst "Ruth"
  rtxt "1.In the days\r\n2.the name\r\n3.the rest\r\nChapter 2\r\n"
scroll Form1.scr 2
  rtxt "1.And she had a kinsman\r\n12.that stayed\r\n"

# ODDITY(converted-twice-doubles): a second conversion is added behind the first. This source is the shortest that is taken.
set Form1.RTB1.Text = "\r\n\r\nRuth\r\n[1]Ruth.\r\n"; click! Form1.Command33
@changes KJV/Ruth.TXT | +9 Ruth | +10 Chapter 1 | +11 1.Ruth.

# ODDITY(dash-counts-a-chapter): a rule between chapters counts as a chapter.
set Form1.RTB1.Text = "\r\n\r\nJoel\r\n[1]The word of the Lord\r\n------\r\n[1]Blow the trumpet\r\n[2.1]and sound\r\n"
click! Form1.Command33
@show KJV/Joel.TXT | Joel | Chapter 1 | 1.The word of the Lord | Chapter 3 | 1.Blow the trumpet | 2.1.and sound
@show KJV/TEMP.TXT | missing

# A verse without its closing bracket and a source without a blank line end the program.
set Form1.RTB1.Text = "\r\n\r\nAmos\r\n[1 The words of Amos, who was\r\n"
click! Form1.Command33 | run-time error 5 "Invalid procedure call or argument" | end
@delete TEMP.TXT; @delete KJV/TEMP.TXT
@restart
set Form1.RTB1.Text = "Codex, King James Version and no blank line\r\nAmos"; click! Form1.Command33 | run-time error 62 "Input past end of file" | end
@show TEMP.TXT | Codex, King James Version and no blank line | Amos
