@data real
# Counts that anyone can check, on the whole King James text: every verse that holds the word.
click Form1.Command16; click Form1.op1; type Form1.txts "grace"; click Form1.Command22
run | ran 66 ticks
  text5 "159"
type Form1.txts "in the beginning"; click Form1.Command22; run | ran 66 ticks
  text5 "17"
  lsts: "Genesis 1 1", "Judges 7 19", "Ruth 1 22", "2 Samuel 21 9", "Ezra 4 6", "Proverbs 8 22", "Jeremiah 26 1",
    "Jeremiah 27 1", "Jeremiah 28 1", "Jeremiah 49 34", "Lamentations 2 19", "Ezekiel 40 1", "Amos 7 1", "John 1 1",
    "John 1 2", "Philippians 4 15", "Hebrews 1 10"
# The first candidate decides a verse: "loved" in front of "love" loses it, "gods" in front of "god".
type Form1.txts "love"; click Form1.Command22; run | ran 66 ticks
  text5 "272"
# A psalm's title is found as well: "[A Prayer of Moses the man of God.]"
type Form1.txts "god"; type Form1.txts2 "moses"; click Form1.Command22; run | ran 66 ticks
  text5 "81"
click Form1.Command20

# A reader colours a picture with the thickest brush, zooms and moves it, goes back to the newest state, and saves it.
click Form1.imgp(0)
  LBLPICP "The First Day", pick picture 640x436
click Form1.Command32; mousedown Form4.clrboxs(2) 1 0 5 5; click Form4.picpbs(4)
mousedown Form4.picbox 1 0 40 40
  Form4.clr2.BackColor 42495, picbox.Point(40,40) 41207, picbox.Point(40,52) 41207, picbox.Point(5,5) 14741750
mousedown Form4.clrboxs(14) 1 0 5 5; mousedown Form4.picbox 1 0 40 40
  Form4.picbox.Point(40,40) 8304
click Form4.cmdm(0); click Form4.cmdm(0); click Form4.imgs(0)
  Form4.txt5 "2", picbox.Width 38400, picbox.Left -12992.5, picbox.Point(160,160) 8304
click Form4.IMGSPB(4)
  Form4.picbox picture 640x436, picbox.Left -592.5, picbox.Point(40,40) 41207
click Form4.Command2 | input "Save Picture as" "Save Picture" "The First Day" -> "my first day"
click Form4.Command1
# It stands on the strip behind the other pictures of its chapter, also after the program's next start.
@restart; click Form1.SSCommand3; click Form1.SSCommand3; click Form1.imgp(0)
  LBLPICP "my first day", lblvs "Genesis 1: 1", selfile(2) "PICTURES BY: Lectern", lblp(7) "13", lblp(2) "2: 7"
click Form1.Command32
  Form4.picbox.Point(40,40) 41207, picbox.Point(5,5) 14741750
