@data gallery
# A keeper wrote the catalogue by hand, with every fault a hand makes.
@write pics2.dat "\"dawn \",\"John 2: 1\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"river\",\"1 John 1: 1\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"tent\",\"John 1\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"olive\",\"John 0: 3\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"ark\",\"John one: 3\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"road\",\"John\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"harp\",\"John12: 1\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "\"well\",\"john 1: 1\",\"PICTURES BY: A\"\r\n"
@append pics2.dat "tent,John 2: 4,unquoted\r\n"
click Form1.lst "John"
# By chapter: no colon is a chapter all the same; none, and one that does not begin with a digit, is in no list.
items Form1.lstmc(0)
| Form1.lstmc(0): 4 items
|   "tent"
|   "dawn"
|   "harp"
|   "tent"
items Form1.lstmc(1)
| Form1.lstmc(1): 4 items
|   "John 1"
|   "John 2: 1"
|   "John12: 1"
|   "John 2: 4"
get Form1.lbltm.Caption
| Form1.lbltm.Caption = "2"
# ODDITY(chapter-nought): the work file has them all.
# ODDITY(book-by-prefix): and whatever begins with the book's name.
@show tmppics2.dat
| "dawn ","John 2: 1","PICTURES BY: A"
| "tent","John 1","PICTURES BY: A"
| "olive","John 0: 3","PICTURES BY: A"
| "ark","John one: 3","PICTURES BY: A"
| "road","John","PICTURES BY: A"
| "harp","John12: 1","PICTURES BY: A"
| "tent","John 2: 4","unquoted"
scroll Form1.scr 2
get Form1.LBLPICP.Caption
| Form1.LBLPICP.Caption = "dawn"
get Form1.pick.Picture
| Form1.pick.Picture = picture 4x1
get Form1.lblp(2).Caption
| Form1.lblp(2).Caption = "2: 1"
click Form1.lst "1 John"
items Form1.lstmc(0)
| Form1.lstmc(0): 1 items
|   "river"
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "1: 1"

# Missing fields: a record runs on into the next line, and one that the end of the file cuts off counts for
# nothing. An absurd chapter keeps nobody waiting.
@write pics2.dat "\"flock\",\"Genesis 1: 1\"\r\n"
@append pics2.dat "\"dawn\",\"Genesis 2: 1\",\"PICTURES BY: B\"\r\n"
@append pics2.dat "\"ark\",\"Genesis 99999999999: 1\",\"PICTURES BY: B\"\r\n"
@append pics2.dat "\"road\",\"Genesis 1: 1\",\"PICTURES BY: B\"\r\n"
@append pics2.dat "\"tent\",\"Genesis 1: 2\""
@restart
items Form1.lstmc(0)
| Form1.lstmc(0): 1 items
|   "flock"
items Form1.lstmc(2)
| Form1.lstmc(2): 1 items
|   "dawn"
@write pics2.dat "\"ark\",\"Genesis 99999999999: 1\",\"PICTURES BY: B\"\r\n"
@append pics2.dat "\"flock\",\"Genesis 2: 1\",\"PICTURES BY: B\"\r\n"
@restart
items Form1.lstmc(0)
| Form1.lstmc(0): 2 items
|   "flock"
|   "ark"
get Form1.lbltm.Caption
| Form1.lbltm.Caption = "2147483647"

# ODDITY(nameless-slot): a record without a name leaves its slot as the page before left it.
@write pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"flock\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"\",\"Genesis 3: 1\",\"A\"\r\n"
@restart
click Form1.SSCommand3
get Form1.lblp(6).Caption
| Form1.lblp(6).Caption = "2"
get Form1.lblp(1).Caption
| Form1.lblp(1).Caption = "1: 1"
get Form1.imgp(1).Picture
| Form1.imgp(1).Picture = picture 3x1
get Form1.lblp(7).Caption
| Form1.lblp(7).Caption = "end"

# ODDITY(missing-picture-stops-the-page): a picture that cannot be loaded leaves the slots from there on as they
# were at the start or a change of book …
@write pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@append pics2.dat "\"nobody drew it\",\"Genesis 2: 1\",\"A\"\r\n"
@append pics2.dat "\"flock\",\"Genesis 3: 1\",\"A\"\r\n"
@append pics2.dat "\"cloud\",\"Exodus 1: 1\",\"A\"\r\n"
@append pics2.dat "\"cloud\",\"Exodus 1: 2\",\"A\"\r\n"
@append pics2.dat "\"cloud\",\"Exodus 1: 3\",\"A\"\r\n"
@append pics2.dat "\"cloud\",\"Exodus 1: 4\",\"A\"\r\n"
@append pics2.dat "\"cloud\",\"Exodus 1: 5\",\"A\"\r\n"
@append pics2.dat "\"nobody drew it\",\"Exodus 1: 6\",\"A\"\r\n"
@restart
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "1: 1"
get Form1.lblp(1).Caption
| Form1.lblp(1).Caption = ""
get Form1.imgp(1).Picture
| Form1.imgp(1).Picture = none
get Form1.imgp(2).Picture
| Form1.imgp(2).Picture = none
get Form1.lstmc(0).ListCount
| Form1.lstmc(0).ListCount = 3
# … and ends the program where the person turns the page to it.
click Form1.lst "Exodus"
click Form1.SSCommand3
| run-time error 53 "File not found"
| end

# A file that is no picture does the same.
@write "pics/nobody drew it.jpg" "nobody drew it"
@restart
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "1: 1"
get Form1.lblp(1).Caption
| Form1.lblp(1).Caption = ""
get Form1.lstmc(0).ListCount
| Form1.lstmc(0).ListCount = 3
click Form1.lst "Exodus"
click Form1.SSCommand3
| run-time error 481 "Invalid picture"
| end

# Books that begin alike, and a place in small letters: each book has its own. A name that stands twice is twice there,
# with blanks behind it or without.
@write pics2.dat "\"tent\",\"Joel 2: 1\",\"A\"\r\n\"dawn  \",\"Job 38: 12\",\"A\"\r\n\"olive\",\"job 1: 1\",\"A\"\r\n"
@append pics2.dat "\"dawn\",\"Job 3: 9\",\"A\"\r\n\"harp\",\"Jo 1: 1\",\"A\"\r\n\"dawn\",\"Jobs 1: 1\",\"A\"\r\n"
@restart
click Form1.lst "Job"
items Form1.lstmc(0)
| Form1.lstmc(0): 2 items
|   "dawn"
|   "dawn"
items Form1.lstmc(1)
| Form1.lstmc(1): 2 items
|   "Job 3: 9"
|   "Job 38: 12"
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "3: 9"
get Form1.lblp(1).Caption
| Form1.lblp(1).Caption = "38: 12"
click Form1.lst "Joel"
items Form1.lstmc(1)
| Form1.lstmc(1): 1 items
|   "Joel 2: 1"
click Form1.lst "Jonah"
get Form1.picnm.Max
| Form1.picnm.Max = -1

# An empty catalogue, and none.
@write pics2.dat ""
@restart
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "end"
get Form1.picnm.Max
| Form1.picnm.Max = -1
@delete pics2.dat
@delete tmppics2.dat
@restart
get Form1.lblp(0).Caption
| Form1.lblp(0).Caption = "end"
get Form1.lblc.Caption
| Form1.lblc.Caption = "1"
click Form1.lst "Exodus"
get Form1.rtxt.Text
| Form1.rtxt.Text = "1   A cloud went before them.       \r\nChapter 2\r\n"
get Form1.picnm.Max
| Form1.picnm.Max = -1
@show pics2.dat
| missing

# Without the folder of pictures they are looked for in the data folder.
@delete pics
@write pics2.dat "\"dawn\",\"Genesis 1: 1\",\"A\"\r\n"
@restart
get Form1.Dirpics.Path
| Form1.Dirpics.Path = "DATA"
get Form1.lstmc(0).ListCount
| Form1.lstmc(0).ListCount = 1
get Form1.imgp(0).Picture
| Form1.imgp(0).Picture = none
@copy picend.jpg dawn.jpg
@restart
get Form1.imgp(0).Picture
| Form1.imgp(0).Picture = picture 1x1
