@data gallery
# Today's catalogue is made from the older one. Lines before any credit count for nothing.
@write pics.dat
  | lost line before any credit
  | PICTURES BY: A. Painter
  | '''''''''''''
  | olive branch
  | Genesis 2: 3
  |
  | the long road  
  | Genesis 3: 1
  | 12345
  | PICTURES BY: B. Carver
  | morning cloud
  | Exodus 1: 1
  | night cloud
call ConvertPicsDat
@show pics2.dat
  | "olive branch","Genesis 2: 3","PICTURES BY: A. Painter"
  | "the long road  ","Genesis 3: 1","PICTURES BY: A. Painter"
  | "morning cloud","Exodus 1: 1","PICTURES BY: B. Carver"
  rtxt: "\"olive branch\",\"Genesis 2: 3\",\"PICTURES BY: A. Painter\"",
    "\"the long road  \",\"Genesis 3: 1\",\"PICTURES BY: A. Painter\"",
    "\"morning cloud\",\"Exodus 1: 1\",\"PICTURES BY: B. Carver\""
@show backup/pics2.dat
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | "ark    ","Genesis 3: 2","PICTURES BY: B. Carver"
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "river","Exodus 2: 1","PICTURES BY: A. Painter"
  | "tent","Genesis 2: 1","PICTURES BY: B. Carver"
  | "olive","Genesis 2: 3","PICTURES BY: A. Painter"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"
# ODDITY(short-names-are-skipped): a name of five letters is passed over, and its place is the next name.
@write pics.dat | PICTURES BY: A. Painter | olive | Genesis 2: 3 | staff of wood | Exodus 1: 1
@delete pics2.dat
@delete backup
call ConvertPicsDat
@show pics2.dat | "Genesis 2: 3","staff of wood","PICTURES BY: A. Painter"
@files backup

# By the older rule a chapter shows the first picture at or behind it.
@data gallery
@write pics.dat
  | PICTURES BY: A. Painter
  | dawn  
  | Genesis 1: 1
  | harp
  | Psalms 2: 1
  | ark
  | Genesis 3: 4
  |    
  | Genesis 4: 2
  | road
  | Genesis 4: 4
set Form1.lblc.Caption = "2"
call ShowPicsDatPicture
  LBLPICP "ark", lblvs "Genesis 3: 4", pick picture 7x1
set Form1.lblc.Caption = "4"
call ShowPicsDatPicture
  LBLPICP "road", lblvs "Genesis 4: 4"
set Form1.lblc.Caption = "5"
call ShowPicsDatPicture
  LBLPICP "road"

# The diagnostic form tells each line and the book, and takes the book's name in any case.
@write pics.dat | PICTURES BY: A. Painter | tent | genesis 5: 1 | road | Genesis 6: 1
click! Form1.Command38
  | message "PICTURES BY: A. Painter" "Lectern 2"
  | message "GENESIS" "Lectern 2"
  | message "tent" "Lectern 2"
  | message "GENESIS" "Lectern 2"
  | message "genesis 5: 1" "Lectern 2"
  | message "GENESIS" "Lectern 2"
  Command38 "Command38", LBLPICP "tent", lblvs "genesis 5: 1", pick picture 5x1
@delete pics.dat
click! Form1.Command38 | run-time error 53 "File not found" | end

# The older list: the book's pictures and the chapter's.
@data gallery
scroll Form1.scr 2
# ODDITY(older-list-doubles): each of them twice.
click! Form1.Command40
  List4: "river", "flock", "dawn", "river", "flock", "dawn", "tent", "olive", "tent", "olive", "ark", "road", "ark",
    "road"
  List5: "tent", "olive", "tent", "olive"
  picnm.Max 3, picnm 0, LBLPICP "river"
@files . | bookschap.txt | codex.cfg | picend.jpg | pics2.dat
# Without what the change of book had left there, once.
click! Form1.Command40
  List5: "tent", "olive"
scroll Form1.scr 4
click! Form1.Command40
  List5 empty, picnm.Max -1
call ListChapterPictures
  picnm.Max 0, tmrpic disabled
