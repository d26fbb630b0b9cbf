@data gallery
# A painting goes into the gallery under a name of its own, and over another.
@copy picend.jpg cdx2.ico
@write colors.dat | "16776960",255
click Form1.imgp(1)
  LBLPICP "flock", selfile(1) "Genesis 1: 2"
click Form1.Command32; mousedown Form4.clrboxs(0) 1 0 5 5; mousedown Form4.picbox 1 0 1 0
click Form4.Command2 | input "Save Picture as" "Save Picture" "flock" -> ""
  Form4.MousePointer 1
# ODDITY(name-for-a-place)
click Form4.Command2 | input … -> "painted"
  LBLPICP "flock", lblvs "painted", Form4.picbox.Point(2,0) 20
  lstmc(0): "river", "flock", "dawn", "painted", "tent", "olive", "ark", "road"
@changes pics2.dat | +14 "painted","Genesis 1: 2","PICTURES BY: A. Painter"
@changes pics | +8 painted.JPG
# It is opened again with the pixels that were painted, also after the program's next start.
@restart; click Form1.imgp(3)
  LBLPICP "painted", lblvs "Genesis 1: 2", pick picture 3x1
click Form1.Command32
  Form4.picbox.Point(2,0) 20

# A name that is there: asked about, and no record is added. The old picture stays under backup.
click Form4.Command2
  | input … "painted" -> "painted"
  | question "Picture: painted already exists. Would you like to replace the picture?" "File Found" -> no
  Form4.MousePointer 1
@files backup/pics
click Form4.Command2 | input … -> "painted" | question … -> yes
@files backup/pics | painted.JPG
# Another case is another name in the catalogue, and the same file. With a blank behind it the file is another too.
click Form4.Command2 | input … -> "PAINTED"
click Form4.Command2 | input … -> "painted "
@changes pics2.dat
  | +15 "PAINTED","Genesis 1: 2","PICTURES BY: A. Painter" | +16 "painted ","Genesis 1: 2","PICTURES BY: A. Painter"
@changes pics | +8 painted .JPG
# A name that the file system refuses, and one in a folder that is not there: the record is written, the picture
# is not.
click Form4.Command2 | input … -> "a\tb" | run-time error 52 "Bad file name or number" | end
@changes pics2.dat | +17 "a	b","Genesis 1: 2","PICTURES BY: A. Painter"
@restart; click Form1.imgp(0); click Form1.Command32
click Form4.Command2 | input … "river" -> "a/b" | run-time error 76 "Path not found" | end
@changes pics2.dat | +18 "a/b","Genesis 1: 1","PICTURES BY: A. Painter"
@changes pics | unchanged

# No catalogue, or one that breaks off amid a record: nothing is saved.
@restart; click Form1.imgp(0); click Form1.Command32
@write pics2.dat "\"river\",\"Genesis 1: 1\",\"A\"\r\n\"flock\",\"Genesis 1: 2\""
click Form4.Command2 | input … -> "dusk" | run-time error 62 "Input past end of file" | end
@changes pics2.dat | unchanged
@restart; click Form1.imgp(0); click Form1.Command32; @delete pics2.dat
click Form4.Command2 | input … -> "dusk" | run-time error 53 "File not found" | end
@show pics2.dat | missing

# A pointer that is missing or no picture ends the program where it is wanted, at the opening or with a brush.
@data gallery; click Form1.imgp(0); click Form1.Command32 | run-time error 53 "File not found" | end
get Form1.lblc.Caption | ended
@copy picend.jpg cdx2.ico
@restart; click Form1.imgp(0); click Form1.Command32
  Form4.picpbs(5) picture 22x122
click Form4.picpbs(1)
  Form4.picpbs(1).BorderStyle 1
click Form4.picpbs(4) | run-time error 53 "File not found" | end
@write cdx5.ico "no picture"
@restart; click Form1.imgp(0); click Form1.Command32
click Form4.picpbs(4) | run-time error 481 "Invalid picture" | end
# So does a missing blank page.
@restart; click Form1.imgp(0); click Form1.Command32
click Form4.Command5 | run-time error 53 "File not found" | end

# No palette: the swatches are as designed. A caption that is no number paints as 0, which takes nothing away. There
# is nothing to replace.
@restart; click Form1.imgp(0); click Form1.Command32
  Form4.clrboxs(0) "x", clrbox(0).BackColor 33023, clrboxs(1) " x", clrboxs(23) "X", clrbox(23).BackColor 255
mousedown Form4.clrboxs(23) 1 0 5 5
  Form4.clr1.BackColor 0, clr2.BackColor 255
click Form4.Command3 | run-time error 53 "File not found" | end
@show colors.dat | missing

# A palette of three lines is saved with all 24.
@write colors.dat | "1",2 | "3",4 | "5",6
@restart; click Form1.imgp(0); click Form1.Command32
  Form4.clrboxs(2) "5", clrboxs(3) "X"
click Form4.Command3
@changes colors.dat
  | +4 "X",255 | +5 "X",255 | +6 "X",255 | +7 "X",255 | +8 "X",255 | +9 "X",255 | +10 "X",255 | +11 "X",255
  | +12 "X",255 | +13 "X",255 | +14 "X",255 | +15 "X",255 | +16 "X",255 | +17 "X",255 | +18 "X",255 | +19 "X",255
  | +20 "X",255 | +21 "X",255 | +22 "X",255 | +23 "X",255 | +24 "X",255
@show backup/colors.dat | "1",2 | "3",4 | "5",6
# Of a longer one, 24 are read.
@write colors.dat
  | "1",1 | "2",2 | "3",3 | "4",4 | "5",5 | "6",6 | "7",7 | "8",8 | "9",9 | "10",10 | "11",11 | "12",12
  | "13",13 | "14",14 | "15",15 | "16",16 | "17",17 | "18",18 | "19",19 | "20",20 | "21",21 | "22",22 | "23",23
  | "24",24 | "25",25
@restart; click Form1.imgp(0); click Form1.Command32
  Form4.clrboxs(0) "1", clrboxs(23) "24", clrboxs(23).ForeColor 24
click Form4.Command3
@changes colors.dat | -25 "25",25

# A palette with words and odd numbers that breaks off amid a record.
@write colors.dat "red\r\n\"green\",grass\r\n,\r\n\"\",\"7\"\r\n\"-5\",-7\r\n\"99999999999\",99999999999\r\n\"8\",8\r\n\"9\""
@restart; click Form1.imgp(0); click Form1.Command32
  Form4.clrboxs(0) "red", clrbox(0).BackColor 0, clrboxs(1) "grass", clrboxs(2) "", clrboxs(3) "7"
  Form4.clrbox(3).BackColor -5, clrboxs(4) "X", clrbox(4).BackColor 255, clrboxs(5) "99999999999", clrboxs(6) "8"
  Form4.clrboxs(7) "X"
mousedown Form4.clrboxs(4) 1 0 5 5
  Form4.clr1.BackColor 0
# A number that is too large for a colour.
set Form4.clrboxs(7).Caption = "99999999999"
mousedown Form4.clrboxs(7) 1 0 5 5 | run-time error 6 "Overflow" | end
