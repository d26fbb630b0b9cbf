@data gallery
# A painting goes into the gallery under a name of its own, and over another.
@copy picend.jpg cdx2.ico
@write colors.dat | "16776960",255
click Form1.imgp(1)
  LBLPICP "flock", selfile(1) "Genesis 1: 2"
click Form1.Command32
mousedown Form4.clrboxs(0) 1 0 5 5
mousedown Form4.picbox 1 0 1 0
click Form4.Command2 | input "Save Picture as" "Save Picture" "flock" -> ""
  Form4.MousePointer 1
click Form4.Command2 | input "Save Picture as" "Save Picture" "flock" -> "painted"
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
  | "painted","Genesis 1: 2","PICTURES BY: A. Painter"
@files pics
  | ark.jpg
  | birds.jpg
  | cloud.jpg
  | dawn.jpg
  | flock.jpg
  | harp.jpg
  | olive.jpg
  | painted.JPG
  | River.JPG
  | road.jpg
  | staff.jpg
  | tent.jpg
  | well.jpg
  LBLPICP "flock"
# ODDITY(name-for-a-place)
  lblvs "painted"
  lstmc(0): "river", "flock", "dawn", "painted", "tent", "olive", "ark", "road"
# It is opened again with the pixels that were painted.
  Form4.picbox.Point(2,0) 20
click Form1.imgp(3)
  LBLPICP "painted", pick picture 3x1
click Form1.Command32
  Form4.picbox.Point(2,0) 20

# A name that is there: asked about, and no record is added. The old picture stays under backup.
click Form4.Command2
  | input "Save Picture as" "Save Picture" "painted" -> "painted"
  | question "Picture: painted already exists. Would you like to replace the picture?" "File Found" -> no
  Form4.MousePointer 1
click Form4.Command2
  | input "Save Picture as" "Save Picture" "painted" -> "painted"
  | question "Picture: painted already exists. Would you like to replace the picture?" "File Found" -> yes
@files backup/pics | painted.JPG
  lstmc(0): "river", "flock", "dawn", "painted", "tent", "olive", "ark", "road"
# Another case is another name in the catalogue, and the same file.
click Form4.Command2 | input "Save Picture as" "Save Picture" "painted" -> "PAINTED"
@files pics
  | ark.jpg
  | birds.jpg
  | cloud.jpg
  | dawn.jpg
  | flock.jpg
  | harp.jpg
  | olive.jpg
  | painted.JPG
  | River.JPG
  | road.jpg
  | staff.jpg
  | tent.jpg
  | well.jpg
  lstmc(0): "river", "flock", "dawn", "painted", "PAINTED", "tent", "olive", "ark", "road"

# A name that the file system refuses: the record is written, the picture is not.
click Form4.Command2
  | input "Save Picture as" "Save Picture" "painted" -> "a:b"
  | run-time error 52 "Bad file name or number"
  | end
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
  | "painted","Genesis 1: 2","PICTURES BY: A. Painter"
  | "PAINTED","Genesis 1: 2","PICTURES BY: A. Painter"
  | "a:b","Genesis 1: 2","PICTURES BY: A. Painter"
@files pics
  | ark.jpg
  | birds.jpg
  | cloud.jpg
  | dawn.jpg
  | flock.jpg
  | harp.jpg
  | olive.jpg
  | painted.JPG
  | River.JPG
  | road.jpg
  | staff.jpg
  | tent.jpg
  | well.jpg

# No catalogue: nothing traps it, and the hourglass stays.
@data gallery
@copy picend.jpg cdx2.ico
click Form1.imgp(0)
click Form1.Command32
@delete pics2.dat
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "painted"
  | run-time error 53 "File not found"
  | end

# No folder for the pictures.
@data gallery
@copy picend.jpg cdx2.ico
click Form1.imgp(0)
click Form1.Command32
@delete pics
click Form4.Command2
  | input "Save Picture as" "Save Picture" "river" -> "painted"
  | run-time error 76 "Path not found"
  | end

# Paint without a picture: a white page of the design size. Nothing to begin on is missing, but the pointer.
@data small
@copy bookschap.txt cdx2.ico
click! Form1.Command32 | run-time error 481 "Invalid picture" | end
get Form1.lblc.Caption | ended
@data gallery
@delete pics2.dat
@copy picend.jpg cdx2.ico
click! Form1.Command32
  Form4.picbox.Width 7995, picbox.Height 5445, picbox.Point(5,5) 16777215, IMGSPB(0) picture 533x363
# No palette to be written anew.
click Form4.Command3 | run-time error 53 "File not found" | end
