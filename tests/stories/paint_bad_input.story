@data gallery
# What a person's files and names can do to the paint window.

# A pointer that is missing ends the program where it is wanted, at the opening or with a brush …
click Form1.imgp(0)
click Form1.Command32 | run-time error 53 "File not found" | end
@copy picend.jpg cdx2.ico
@restart
click Form1.imgp(0)
click Form1.Command32
  Form4.picpbs(5) picture 22x122
click Form4.picpbs(1)
  Form4.picpbs(1).BorderStyle 1
click Form4.picpbs(4) | run-time error 53 "File not found" | end
# … and so does one that is no picture, and a missing blank page.
@write cdx5.ico "no picture"
@restart
click Form1.imgp(0)
click Form1.Command32
click Form4.picpbs(4) | run-time error 481 "Invalid picture" | end
@restart
click Form1.imgp(0)
click Form1.Command32
click Form4.Command5 | run-time error 53 "File not found" | end

# No palette: the swatches are as designed, and there is nothing to replace.
@restart
click Form1.imgp(0)
click Form1.Command32
  Form4.clrboxs(0) "x", clrbox(0).BackColor 33023, clrboxs(1) " x", clrboxs(23) "X", clrbox(23).BackColor 255
# A caption that is no number paints as 0, which takes nothing away.
mousedown Form4.clrboxs(23) 1 0 5 5
  Form4.clr1.BackColor 0, clr2.BackColor 255
click Form4.Command3 | run-time error 53 "File not found" | end
@show colors.dat | missing

# A palette of three lines, one of forty, one of letters, one that ends amid a record.
@write colors.dat | "1",2 | "3",4 | "5",6
@restart
click Form1.imgp(0)
click Form1.Command32
  Form4.clrboxs(2) "5", clrboxs(3) "X"
click Form4.Command3
@show colors.dat
  | "1",2
  | "3",4
  | "5",6
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
  | "X",255
@show backup/colors.dat | "1",2 | "3",4 | "5",6
@write colors.dat
  | "1",1
  | "2",2
  | "3",3
  | "4",4
  | "5",5
  | "6",6
  | "7",7
  | "8",8
  | "9",9
  | "10",10
  | "11",11
  | "12",12
  | "13",13
  | "14",14
  | "15",15
  | "16",16
  | "17",17
  | "18",18
  | "19",19
  | "20",20
  | "21",21
  | "22",22
  | "23",23
  | "24",24
  | "25",25
  | "26",26
  | "27",27
  | "28",28
  | "29",29
  | "30",30
  | "31",31
  | "32",32
  | "33",33
  | "34",34
  | "35",35
  | "36",36
  | "37",37
  | "38",38
  | "39",39
  | "40",40
@restart
click Form1.imgp(0)
click Form1.Command32
  Form4.clrboxs(0) "1", clrboxs(23) "24", clrboxs(23).ForeColor 24
@write colors.dat "red\r\n\"green\",grass\r\n,\r\n\"\",\"7\"\r\n\"-5\",-7\r\n\"99999999999\",99999999999\r\n\"8\",8\r\n\"9\""
@restart
click Form1.imgp(0)
click Form1.Command32
  Form4.clrboxs(0) "red", clrbox(0).BackColor 0, clrboxs(1) "grass", clrboxs(2) "", clrboxs(3) "7"
  Form4.clrbox(3).BackColor -5, clrboxs(4) "X", clrbox(4).BackColor 255, clrboxs(5) "99999999999", clrboxs(6) "8"
  Form4.clrboxs(7) "X"
mousedown Form4.clrboxs(4) 1 0 5 5
  Form4.clr1.BackColor 0
# A number that no colour can be.
set Form4.clrboxs(7).Caption = "99999999999"
mousedown Form4.clrboxs(7) 1 0 5 5 | run-time error 6 "Overflow" | end

# Without a catalogue nothing is saved; a record that its end cuts off fails the search for the name.
@restart
click Form1.imgp(0)
click Form1.Command32
@write pics2.dat "\"river\",\"Genesis 1: 1\",\"A\"\r\n\"flock\",\"Genesis 1: 2\""
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "dusk"
  | run-time error 62 "Input past end of file"
  | end
@show pics2.dat | "river","Genesis 1: 1","A" | "flock","Genesis 1: 2" (no line end)
@restart
click Form1.imgp(0)
click Form1.Command32
@delete pics2.dat
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "dusk"
  | run-time error 53 "File not found"
  | end
@show pics2.dat | missing

# A name that the file system refuses, and one with a folder that is not there: the record is written, the picture is
# not.
@write pics2.dat | "river","Genesis 1: 1","A"
@restart
click Form1.imgp(0)
click Form1.Command32
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "dusk?"
  | run-time error 52 "Bad file name or number"
  | end
@show pics2.dat | "river","Genesis 1: 1","A" | "dusk?","Genesis 1: 1","A"
@write pics2.dat | "river","Genesis 1: 1","A"
@restart
click Form1.imgp(0)
click Form1.Command32
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "a/b"
  | run-time error 76 "Path not found"
  | end
@show pics2.dat | "river","Genesis 1: 1","A" | "a/b","Genesis 1: 1","A"

# A name in another case is a new one, and the same file; the picture before stays under backup. So is one with a
# blank behind it, of which the file is another.
@write pics2.dat | "river","Genesis 1: 1","A"
@restart
click Form1.imgp(0)
click Form1.Command32
click Form4.Command2 | input "Save Picture as" "Save Picture" "river" -> "RIVER"
click Form4.Command2 | input "Save Picture as" "Save Picture" "river" -> "river "
@show pics2.dat | "river","Genesis 1: 1","A" | "RIVER","Genesis 1: 1","A" | "river ","Genesis 1: 1","A"
@files backup/pics | River.JPG
@files pics
  | ark.jpg
  | birds.jpg
  | cloud.jpg
  | dawn.jpg
  | flock.jpg
  | harp.jpg
  | olive.jpg
  | river .JPG
  | River.JPG
  | road.jpg
  | staff.jpg
  | tent.jpg
  | well.jpg
  Form4 shown

# A canvas of one pixel: painted, zoomed in and out, saved.
click Form1.Command32
@copy picend.jpg newpic.jpg
set Form4.picbox.Width = 15
set Form4.picbox.Height = 15
click Form4.Command5
mousedown Form4.clrboxs(0) 1 0 5 5
mousedown Form4.picbox 1 0 0 0
mousemove Form4.picbox 1 0 -400 90000
click Form4.cmdm(0)
click Form4.cmdm(0)
  Form4.picbox.Width 60
click Form4.cmdm(1)
click Form4.cmdm(1)
  Form4.picbox.Width 15
# A half of one pixel is none, and takes no paint.
click! Form4.cmdm(1)
click! Form4.cmdm(1)
click! Form4.cmdm(1)
  Form4.picbox.Width 1
mousedown Form4.picbox 1 0 0 0
