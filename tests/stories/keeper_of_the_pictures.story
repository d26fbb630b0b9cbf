@data gallery
# The bench is no reader's sight.
click Form1.Command26 | refused: hidden
click! Form1.Command26
  Frame5 shown
click Form1.Command46
  Frame5 hidden

# A picture is added. The strip stays on its page.
click Form1.SSCommand3
type Form1.selfile(0) "cloud" | refused: hidden
type! Form1.selfile(0) "cloud"
type! Form1.selfile(1) "Genesis 3: 4"
type! Form1.selfile(2) "C. Drawer"
click! Form1.Command49
  lblendpic "9", lblp(2) "3: 4", lstmc(2).List(7) "PICTURES BY: C. Drawer"
# ODDITY(doubled-credit): straight after a click on a picture the prefix is written twice.
click Form1.imgp(1)
click! Form1.Command49
  lstmc(2).List(8) "PICTURES BY: PICTURES BY: A. Painter"
@show pics2.dat
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
  | "cloud","Genesis 3: 4","PICTURES BY: C. Drawer"
  | "road","Genesis 3: 1","PICTURES BY: PICTURES BY: A. Painter"
# Three empty boxes make a record that belongs to no book.
type! Form1.selfile(0) ""
type! Form1.selfile(1) ""
type! Form1.selfile(2) ""
click! Form1.Command49
  lstmc(0).ListCount 9

# Remove Duplicate: the first record of the picked name goes, the blanks behind names go with it.
click Form1.lst "Exodus"
click Form1.imgp(2)
  selfile(0) "river"
click! Form1.Command45
# ODDITY(remove-first-of-the-name): that was the one in Genesis; the one that was picked is still there.
  lstmc(0): "cloud", "birds", "river", "staff", "well"
  lblp(2).ForeColor -2147483630
@show pics2.dat
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
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
  | "cloud","Genesis 3: 4","PICTURES BY: C. Drawer"
  | "road","Genesis 3: 1","PICTURES BY: PICTURES BY: A. Painter"
  | "","","PICTURES BY: "
@files backup | pics2.dat
# Again: now it is this one, the last of its name.
click Form1.imgp(2)
click! Form1.Command45
  lstmc(0): "cloud", "birds", "staff", "well"
@files pics
  | ark.jpg
  | birds.jpg
  | cloud.jpg
  | dawn.jpg
  | flock.jpg
  | harp.jpg
  | olive.jpg
  | River.JPG
  | road.jpg
  | staff.jpg
  | tent.jpg
  | well.jpg
@restart
@append pics2.dat | "done","Ruth 1: 1","A"
click Form1.imgp(2)
  selfile(0) "tent"
click! Form1.Command45
@show pics2.dat
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "olive","Genesis 2: 3","PICTURES BY: A. Painter"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"
  | "cloud","Genesis 3: 4","PICTURES BY: C. Drawer"
  | "road","Genesis 3: 1","PICTURES BY: PICTURES BY: A. Painter"
  | "","","PICTURES BY: "
# ODDITY(no-pick-is-the-first): without a pick it is the first of the page.
click! Form1.Command45
  lstmc(0): "dawn", "olive", "ark", "road", "cloud", "road"

# Remove All wants a path that no picture has; the program ends, and the catalogue is as it was.
# ODDITY(remove-all-wants-a-path)
click Form1.lst "Exodus"
click Form1.imgp(1)
click! Form1.Command47 | run-time error 76 "Path not found" | end
@show picsremoved.dat | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
@restart
click Form1.lst "Exodus"
  lstmc(0): "cloud", "birds", "staff", "well"
@files . | bookschap.txt | codex.cfg | picend.jpg | pics2.dat | pics22.dat | picsremoved.dat | tmppics2.dat
# ODDITY(leftover-of-a-failed-rewrite): the records that it had handled stand twice after the next rewrite.
@show pics22.dat | "ark","Genesis 3: 2","PICTURES BY: B. Carver" | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
click! Form1.SSCommand1
@show pics2.dat
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "olive","Genesis 2: 3","PICTURES BY: A. Painter"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"
  | "cloud","Genesis 3: 4","PICTURES BY: C. Drawer"
  | "road","Genesis 3: 1","PICTURES BY: PICTURES BY: A. Painter"
  | "","","PICTURES BY: "
@write pics2.dat | "flock  ","Genesis 1: 1","A" | "dawn","Genesis 1: 2","A"
# With the path it moves what lies there, and the record goes.
@write KJV/flock/jpg "what lies there"
@folder KJV/rem/flock
@restart
click Form1.imgp(0)
click! Form1.Command47
  lstmc(0): "dawn"
@show KJV/rem/flock/jpg | what lies there (no line end)
@show picsremoved.dat | "birds","Exodus 1: 1","PICTURES BY: B. Carver" | "flock","Genesis 1: 1","A"
@show pics2.dat | "dawn","Genesis 1: 2","A"
# A name that stands twice wants the path twice.
@write pics2.dat | "dawn","Genesis 1: 2","A" | "dawn","Genesis 2: 2","A"
@write KJV/dawn/jpg "once"
@folder KJV/rem/dawn
@restart
click Form1.imgp(0)
click! Form1.Command47 | run-time error 53 "File not found" | end
@show pics2.dat | "dawn","Genesis 1: 2","A" | "dawn","Genesis 2: 2","A"

# The last record of all leaves an empty catalogue.
@delete pics22.dat
@write pics2.dat | "dawn","Genesis 1: 2","A"
@restart
click! Form1.Command45
@show pics2.dat | empty
  picnm.Max -1
@show backup/pics2.dat | "dawn","Genesis 1: 2","A"

# The help's note belongs to a label of the bench.
click! Form1.Label2
