@data gallery
# A keeper edited the catalogue of pictures by hand, with every mistake that can be made.
@write pics2.dat
  | "dawn ","John 2: 1","PICTURES BY: A" | "river","1 John 1: 1","PICTURES BY: A" | "tent","John 1","PICTURES BY: A"
  | "olive","John 0: 3","PICTURES BY: A" | "ark","John one: 3","PICTURES BY: A" | "road","John","PICTURES BY: A"
  | "harp","John12: 1","PICTURES BY: A" | "well","john 1: 1","PICTURES BY: A" | tent,John 2: 4,unquoted
click Form1.lst "John"
# A place needs no colon; one without a chapter, or with a chapter that does not begin with a digit, is in no list.
  lstmc(0): "tent", "dawn", "harp", "tent"
  lstmc(1): "John 1", "John 2: 1", "John12: 1", "John 2: 4"
  lbltm "2"
# ODDITY(chapter-nought): the work file has them all.
# ODDITY(book-by-prefix): and whatever begins with the book's name.
@show tmppics2.dat
  | "dawn ","John 2: 1","PICTURES BY: A" | "tent","John 1","PICTURES BY: A" | "olive","John 0: 3","PICTURES BY: A"
  | "ark","John one: 3","PICTURES BY: A" | "road","John","PICTURES BY: A" | "harp","John12: 1","PICTURES BY: A"
  | "tent","John 2: 4","unquoted"
scroll Form1.scr 2
  LBLPICP "dawn", pick picture 4x1, lblp(2) "2: 1"
click Form1.lst "1 John"
  lblp(0) "1: 1"
  lstmc(0): "river"

# A record without a field takes it from the next line, and one that the end of the file cuts off counts for nothing.
# An absurdly large chapter number costs no time.
@write pics2.dat
  | "flock","Genesis 1: 1" | "dawn","Genesis 2: 1","B" | "ark","Genesis 99999999999: 1","B" | "road","Genesis 1: 1","B"
@append pics2.dat "\"tent\",\"Genesis 1: 2\""
@restart
  lstmc(0): "flock"
  lstmc(2): "dawn"
@write pics2.dat | "ark","Genesis 99999999999: 1","B" | "flock","Genesis 2: 1","B"
@restart
  lbltm "2147483647"
  lstmc(0): "flock", "ark"

# ODDITY(nameless-slot): a record without a name leaves in its slot what the page before had there.
@write pics2.dat
  | "dawn","Genesis 1: 1","A" | "flock","Genesis 1: 1","A" | "dawn","Genesis 1: 1","A" | "dawn","Genesis 1: 1","A"
  | "dawn","Genesis 1: 1","A" | "dawn","Genesis 1: 1","A" | "","Genesis 3: 1","A"
@restart; click Form1.SSCommand3
  lblp(6) "2", lblp(1) "1: 1", imgp(1) picture 3x1, lblp(7) "end"

# ODDITY(missing-picture-stops-the-page): a picture that cannot be loaded leaves the slots from there on as they
# were at the start or a change of book …
@write pics2.dat
  | "dawn","Genesis 1: 1","A" | "nobody drew it","Genesis 2: 1","A" | "flock","Genesis 3: 1","A"
  | "cloud","Exodus 1: 1","A" | "cloud","Exodus 1: 2","A" | "cloud","Exodus 1: 3","A" | "cloud","Exodus 1: 4","A"
  | "cloud","Exodus 1: 5","A" | "nobody drew it","Exodus 1: 6","A"
@restart
  lblp(0) "1: 1", lblp(1) "", imgp(1) none, imgp(2) none, lstmc(0).ListCount 3
# … and ends the program where the person turns the page to it.
click Form1.lst "Exodus"; click Form1.SSCommand3 | run-time error 53 "File not found" | end
# A file that is no picture does the same.
@write "pics/nobody drew it.jpg" "nobody drew it"
@restart
  lblp(0) "1: 1", lblp(1) "", lstmc(0).ListCount 3
click Form1.lst "Exodus"; click Form1.SSCommand3 | run-time error 481 "Invalid picture" | end

# Books that begin alike, and a place in small letters: each book has its own. A name that stands twice is twice
# there, with blanks behind it or without.
@write pics2.dat
  | "tent","Joel 2: 1","A" | "dawn  ","Job 38: 12","A" | "olive","job 1: 1","A" | "dawn","Job 3: 9","A"
  | "harp","Jo 1: 1","A" | "dawn","Jobs 1: 1","A"
@restart; click Form1.lst "Job"
  lstmc(0): "dawn", "dawn"
  lstmc(1): "Job 3: 9", "Job 38: 12"
  lblp(0) "3: 9", lblp(1) "38: 12"
click Form1.lst "Joel"
  lstmc(1): "Joel 2: 1"
click Form1.lst "Jonah"
  picnm.Max -1

# An empty catalogue, and no catalogue.
@write pics2.dat ""
@restart
  lblp(0) "end", picnm.Max -1
@delete pics2.dat; @delete tmppics2.dat
@restart
  lblp(0) "end", lblc "1"
click Form1.lst "Exodus"
  rtxt "1   A cloud went before them.       \r\nChapter 2\r\n", picnm.Max -1
@show pics2.dat | missing

# Without the folder of pictures they are looked for in the data folder.
@delete pics
@write pics2.dat | "dawn","Genesis 1: 1","A"
@restart
  Dirpics.Path "DATA", lstmc(0).ListCount 1, imgp(0) none
@copy picend.jpg dawn.jpg
@restart
  imgp(0) picture 1x1

# Today's catalogue is made from the older one. Lines before any credit count for nothing.
@data gallery
@write pics.dat
  | lost line before any credit | PICTURES BY: A. Painter | ''''''''''''' | olive branch | Genesis 2: 3
  |
  | the long road   | Genesis 3: 1 | 12345 | PICTURES BY: B. Carver | morning cloud | Exodus 1: 1 | night cloud
call ConvertPicsDat
  rtxt "\"olive branch\",\"Genesis 2: 3\",\"PICTURES BY: A. Painter\"\r\n\"the long…\"PICTURES BY: B. Carver\"\r\n"
@changes backup/pics2.dat pics2.dat | unchanged
@show pics2.dat
  | "olive branch","Genesis 2: 3","PICTURES BY: A. Painter" | "the long road  ","Genesis 3: 1","PICTURES BY: A. Painter"
  | "morning cloud","Exodus 1: 1","PICTURES BY: B. Carver"
# ODDITY(short-names-are-skipped): a name of five letters is passed over, and its place is the next name.
@write pics.dat | PICTURES BY: A. Painter | olive | Genesis 2: 3 | staff of wood | Exodus 1: 1
@delete pics2.dat; @delete backup; call ConvertPicsDat
@show pics2.dat | "Genesis 2: 3","staff of wood","PICTURES BY: A. Painter"
@files backup

# By the older rule a chapter shows the first picture of that chapter or of a later one.
@data gallery
@write pics.dat
  | PICTURES BY: A. Painter | dawn   | Genesis 1: 1 | harp | Psalms 2: 1 | ark | Genesis 3: 4 |     | Genesis 4: 2
  | road | Genesis 4: 4
set Form1.lblc.Caption = "2"; call ShowPicsDatPicture
  LBLPICP "ark", lblvs "Genesis 3: 4", pick picture 7x1
set Form1.lblc.Caption = "4"; call ShowPicsDatPicture
  LBLPICP "road", lblvs "Genesis 4: 4"
set Form1.lblc.Caption = "5"; call ShowPicsDatPicture
  LBLPICP "road"

# The diagnostic form reports each line and the book, and takes the book's name in any case.
@write pics.dat | PICTURES BY: A. Painter | tent | genesis 5: 1 | road | Genesis 6: 1
click! Form1.Command38
  | message "PICTURES BY: A. Painter" "Lectern 2" | message "GENESIS" "Lectern 2"
  | message "tent" "Lectern 2" | message "GENESIS" "Lectern 2"
  | message "genesis 5: 1" "Lectern 2" | message "GENESIS" "Lectern 2"
  Command38 "Command38", LBLPICP "tent", lblvs "genesis 5: 1", pick picture 5x1
@delete pics.dat; click! Form1.Command38 | run-time error 53 "File not found" | end

# The older list: the book's pictures and the chapter's. ODDITY(older-list-doubles): each of them twice.
@data gallery; scroll Form1.scr 2; click! Form1.Command40
  List4: "river", "flock", "dawn", "river", "flock", "dawn", "tent", "olive", "tent", "olive", "ark", "road", "ark",
    "road"
  List5: "tent", "olive", "tent", "olive"
  picnm.Max 3, picnm 0, LBLPICP "river"
@show tmppics2.dat | missing
# The second time, without what the change of book had left in the work file, each stands there once.
click! Form1.Command40
  List4.ListCount 7
  List5: "tent", "olive"
scroll Form1.scr 4; click! Form1.Command40
  List5 empty, picnm.Max -1
call ListChapterPictures
  picnm.Max 0, tmrpic disabled
