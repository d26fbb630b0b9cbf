@data gallery
# Two pictures of a chapter change places on the strip; the mark goes along.
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
click Form1.imgp(1)
click! Form1.SSCommand1
  lstmc(0).List(0) "flock", lstmc(0).List(1) "river", lblp(0).ForeColor 255, lblp(1).ForeColor -2147483630
@show pics2.dat
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "tent","Genesis 2: 1","PICTURES BY: B. Carver"
  | "olive","Genesis 2: 3","PICTURES BY: A. Painter"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"
click Form1.imgp(1)
click! Form1.SSCommand2
  lstmc(0).List(1) "dawn", lstmc(0).List(2) "river", lblp(2).ForeColor 255
# ODDITY(mark-after-a-move): from the first slot the mark is lost, from the last it goes to the first number.
click Form1.imgp(0)
click! Form1.SSCommand2
  lblp(0).ForeColor -2147483630, lblp(1).ForeColor -2147483630

# The first picture has nowhere to go; the file is written anew, and that is all.
@data gallery
click Form1.imgp(0)
click! Form1.SSCommand1
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
@show pics2.dat
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
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

# Across chapters and against the file's order:
# ODDITY(move-loses-a-record): the trigger stands first in the file, gets an empty record behind it, and the
# picture is gone.
@data gallery
click Form1.imgp(4)
  selfile(0) "olive", lstmc(0).List(5) "ark"
click! Form1.SSCommand2
  lstmc(0): "river", "flock", "dawn", "tent", "ark", "road"
@show pics2.dat
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | ,,
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "river","Exodus 2: 1","PICTURES BY: A. Painter"
  | "tent","Genesis 2: 1","PICTURES BY: B. Carver"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"
  lblp(5).ForeColor 255, lblp(4).ForeColor -2147483630
# The empty record is one like any other from now on.
click Form1.imgp(1)
click! Form1.SSCommand2
@show pics2.dat
  | "river","Genesis 1: 1","PICTURES BY: A. Painter"
  | "ark","Genesis 3: 2","PICTURES BY: B. Carver"
  | "","",""
  | "cloud","Exodus 1: 1","PICTURES BY: A. Painter"
  | "birds","Exodus 1: 1","PICTURES BY: B. Carver"
  | "river","Exodus 2: 1","PICTURES BY: A. Painter"
  | "tent","Genesis 2: 1","PICTURES BY: B. Carver"
  | "dawn","Genesis 1: 1","PICTURES BY: B. Carver"
  | "flock","Genesis 1: 2","PICTURES BY: A. Painter"
  | "road","Genesis 3: 1","PICTURES BY: A. Painter"
  | "staff","Exodus 2: 1","PICTURES BY: B. Carver"
  | "well","Exodus 2: 1","PICTURES BY: A. Painter"
  | "harp","Psalms 2: 1, and all of it","PICTURES BY: B. Carver"

# The last picture of the book leaves the catalogue.
@data gallery
click Form1.SSCommand3
click Form1.imgp(1)
  selfile(0) "road"
click! Form1.SSCommand2
  lblendpic "9"
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark"

# A name that stands in several records acts at each of them: the river of Genesis, held back, is replaced by the
# one of Exodus and lost.
@data gallery
click Form1.lst "Exodus"
click Form1.imgp(2)
  selfile(0) "river"
click! Form1.SSCommand2
  lstmc(0): "cloud", "birds", "staff", "river", "well"
  lstmc(1): "Exodus 1: 1", "Exodus 1: 1", "Exodus 2: 1", "Exodus 2: 1", "Exodus 2: 1"
click Form1.lst "Genesis"
  lstmc(0): "flock", "dawn", "tent", "olive", "ark", "road"

# Of a filler nothing moves.
@data gallery
click Form1.SSCommand3
click Form1.imgp(3)
click! Form1.SSCommand2
click Form1.lst "Exodus"
click Form1.lst "Genesis"
  lstmc(0): "river", "flock", "dawn", "tent", "olive", "ark", "road"
