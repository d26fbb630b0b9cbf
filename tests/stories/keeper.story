@data gallery
# The keeper's tools for the pictures are out of a reader's reach.
click Form1.Command26 | refused: hidden
click! Form1.Command26
  Frame5 shown
click Form1.Command46
  Frame5 hidden

# A picture is added. The strip stays on its page.
click Form1.SSCommand3; type Form1.selfile(0) "cloud" | refused: hidden
type! Form1.selfile(0) "cloud"; type! Form1.selfile(1) "Genesis 3: 4"; type! Form1.selfile(2) "C. Drawer"
click! Form1.Command49
  lblendpic "9", lblp(2) "3: 4", lstmc(2).List(7) "PICTURES BY: C. Drawer"
# ODDITY(doubled-credit): straight after a click on a picture the prefix is written twice.
click Form1.imgp(1); click! Form1.Command49
  lstmc(2).List(8) "PICTURES BY: PICTURES BY: A. Painter"
@changes pics2.dat
  | +14 "cloud","Genesis 3: 4","PICTURES BY: C. Drawer"
  | +15 "road","Genesis 3: 1","PICTURES BY: PICTURES BY: A. Painter"
# From three empty boxes comes a record that belongs to no book.
type! Form1.selfile(0) ""; type! Form1.selfile(1) ""; type! Form1.selfile(2) ""; click! Form1.Command49
  lstmc(0).ListCount 9
@changes pics2.dat | +16 "","","PICTURES BY: "

# Remove Duplicate: the first record of the picked name goes, and with it the blanks behind all names.
click Form1.lst "Exodus"; click Form1.imgp(2)
  selfile(0) "river"
click! Form1.Command45
# ODDITY(remove-first-of-the-name): that was the one in Genesis; the one that was picked is still there.
  lstmc(0): "cloud", "birds", "river", "staff", "well"
  lblp(2).ForeColor -2147483630
@changes pics2.dat
  | -1 "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | -2 "ark    ","Genesis 3: 2","PICTURES BY: B. Carver" | +1 "ark","Genesis 3: 2","PICTURES BY: B. Carver"
@files backup | pics2.dat
# Again: now it is this one, the last of its name. Its file stays.
click Form1.imgp(2); click! Form1.Command45
  lstmc(0): "cloud", "birds", "staff", "well"
@changes pics2.dat | -5 "river","Exodus 2: 1","PICTURES BY: A. Painter"
@changes pics | unchanged
@restart
@append pics2.dat | "done","Ruth 1: 1","A"
click Form1.imgp(2)
  selfile(0) "tent"
click! Form1.Command45
@changes pics2.dat | -5 "tent","Genesis 2: 1","PICTURES BY: B. Carver" | -15 "done","Ruth 1: 1","A"
# ODDITY(no-pick-is-the-first): with no picture picked it takes the first of the page.
click! Form1.Command45
  lstmc(0): "dawn", "olive", "ark", "road", "cloud", "road"
@changes pics2.dat | -2 "flock","Genesis 1: 2","PICTURES BY: A. Painter"

# Remove All needs folders that no data folder has; the program ends, and the catalogue is as it was.
# ODDITY(remove-all-wants-a-path)
click Form1.lst "Exodus"; click Form1.imgp(1)
click! Form1.Command47 | run-time error 76 "Path not found" | end
@show picsremoved.dat | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
@changes pics2.dat | unchanged
# ODDITY(leftover-of-a-failed-rewrite): the records that it had handled stand twice after the next rewrite.
@show pics22.dat | "ark","Genesis 3: 2","PICTURES BY: B. Carver" | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
@restart; click! Form1.SSCommand1
@changes pics2.dat
  | +3 "ark","Genesis 3: 2","PICTURES BY: B. Carver" | +4 "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
# Where the folders are there it moves what lies in them, and the record goes.
@write pics2.dat | "flock  ","Genesis 1: 1","A" | "dawn","Genesis 1: 2","A"
@write KJV/flock/jpg "what lies there"
@folder KJV/rem/flock
@restart; click Form1.imgp(0); click! Form1.Command47
  lstmc(0): "dawn"
@show KJV/rem/flock/jpg | what lies there (no line end)
@changes picsremoved.dat | +2 "flock","Genesis 1: 1","A"
@show pics2.dat | "dawn","Genesis 1: 2","A"
# A name that stands twice would have to be moved twice.
@write pics2.dat | "dawn","Genesis 1: 2","A" | "dawn","Genesis 2: 2","A"
@write KJV/dawn/jpg "once"
@folder KJV/rem/dawn
@restart; click Form1.imgp(0); click! Form1.Command47 | run-time error 53 "File not found" | end
@changes pics2.dat | unchanged

# The last record of all leaves an empty catalogue.
@delete pics22.dat
@write pics2.dat | "dawn","Genesis 1: 2","A"
@restart; click! Form1.Command45
  picnm.Max -1
@changes backup/pics2.dat pics2.dat | unchanged
@show pics2.dat | empty
# The help's note belongs to a label among the tools.
click! Form1.Label2

# Two pictures of a chapter change places on the strip; the mark goes along.
@data gallery; click Form1.imgp(1); click! Form1.SSCommand1
  lstmc(0): "flock", "river", "dawn", "tent", "olive", "ark", "road"
  lblp(0).ForeColor 255, lblp(1).ForeColor -2147483630
# A name that stands in several records acts at each of them: the river of Exodus is lost.
@changes pics2.dat
  | -1 "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | -2 "ark    ","Genesis 3: 2","PICTURES BY: B. Carver" | +1 "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | +3 "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | -6 "river","Exodus 2: 1","PICTURES BY: A. Painter"
click Form1.imgp(1); click! Form1.SSCommand2
  lstmc(0): "flock", "dawn", "river", "tent", "olive", "ark", "road"
  lblp(2).ForeColor 255
# ODDITY(mark-after-a-move): moved from the first slot, the mark is lost; from the last, it goes to the first number.
click Form1.imgp(0); click! Form1.SSCommand2
  lblp(0).ForeColor -2147483630, lblp(1).ForeColor -2147483630

# The first picture cannot move further to the left; the file is rewritten unchanged but for the blanks behind names.
@data gallery; click Form1.imgp(0); click! Form1.SSCommand1
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
@changes pics2.dat
  | -2 "ark    ","Genesis 3: 2","PICTURES BY: B. Carver" | +2 "ark","Genesis 3: 2","PICTURES BY: B. Carver"

# ODDITY(move-loses-a-record): moved behind one that stands before it in the file, the picture is gone, and an empty
# record follows the other one.
click Form1.imgp(4)
  selfile(0) "olive", lstmc(0).List(5) "ark"
click! Form1.SSCommand2
  lstmc(0): "river", "flock", "dawn", "tent", "ark", "road"
  lblp(5).ForeColor 255, lblp(4).ForeColor -2147483630
@changes pics2.dat | +3 ,, | -8 "olive","Genesis 2: 3","PICTURES BY: A. Painter"
# The empty record is one like any other from now on.
click Form1.imgp(1); click! Form1.SSCommand2
@changes pics2.dat
  | -3 ,, | -4 "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | +3 "","","" | +9 "flock","Genesis 1: 2","PICTURES BY: A. Painter"

# The last picture of the book leaves the catalogue; a filler cannot be moved.
@data gallery; click Form1.SSCommand3; click Form1.imgp(3); click! Form1.SSCommand2
click Form1.lst "Exodus"; click Form1.lst "Genesis"
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
click Form1.SSCommand3; click Form1.imgp(1)
  selfile(0) "road"
click! Form1.SSCommand2
  lblendpic "9"
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark"

# So is the river of Genesis here: held back, it is replaced by the one of Exodus.
@data gallery; click Form1.lst "Exodus"; click Form1.imgp(2); click! Form1.SSCommand2
  lstmc(0): "cloud", "birds", "staff", "river", "well"
  lstmc(1): "Exodus 1: 1", "Exodus 1: 1", "Exodus 2: 1", "Exodus 2: 1", "Exodus 2: 1"
click Form1.lst "Genesis"
  lstmc(0): "flock", "dawn", "tent", "olive", "ark", "road"
