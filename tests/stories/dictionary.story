# A reader meets a word that nobody uses any more.
@write cdxdic.dat "\"Ephod\",\"A garment of the priests, worn over the robe\",\"And he put on the ephod.\",\"Ruth 1:1\"\r\n\"Lamp\",\"A light\",\"They lit a lamp.\",\"Genesis 3:1\"\r\n\"lamp\",\"A lesser light\",\"The lamp burned.\",\"Genesis 3:2\"\r\n\"Ephod\",\"Another of that name\",\"Nobody wore it.\",\"Jude 1:1\"\r\n"
set Form1.picp.Visible = True
click Form1.Command17
get Form1.frmd.Visible
| Form1.frmd.Visible = True
get Form1.picp.Visible
| Form1.picp.Visible = False
get Form1.Command17.Enabled
| Form1.Command17.Enabled = False
get Form1.Command3.Enabled
| Form1.Command3.Enabled = False
get Form1.Command1.Enabled
| Form1.Command1.Enabled = True
items Form1.lstd
| Form1.lstd: 4 items
|   "Ephod"
|   "Lamp"
|   "lamp"
|   "Ephod"

# The entry, and the shadow behind it. Case counts, and of two records of one word the first is shown.
click Form1.lstd "lamp"
get Form1.dwd.Caption
| Form1.dwd.Caption = "lamp"
get Form1.dwd2.Caption
| Form1.dwd2.Caption = "lamp"
get Form1.ddf.Caption
| Form1.ddf.Caption = "A lesser light"
get Form1.ddf2.Caption
| Form1.ddf2.Caption = "A lesser light"
get Form1.dex.Caption
| Form1.dex.Caption = "The lamp burned. :  Genesis 3:2"
get Form1.dex2.Caption
| Form1.dex2.Caption = "The lamp burned. :  Genesis 3:2"
get Form1.lstd.MousePointer
| Form1.lstd.MousePointer = 0
click Form1.lstd 3
get Form1.ddf.Caption
| Form1.ddf.Caption = "A garment of the priests, worn over the robe"

# ODDITY(dictionary-hourglass): a press that does not become a click leaves the hourglass.
mousedown Form1.lstd 1 0 10 10
get Form1.lstd.MousePointer
| Form1.lstd.MousePointer = 11
click Form1.lstd
get Form1.lstd.MousePointer
| Form1.lstd.MousePointer = 0
get Form1.ddf.Caption
| Form1.ddf.Caption = "A garment of the priests, worn over the robe"

click Form1.Command19
get Form1.frmd.Visible
| Form1.frmd.Visible = False
get Form1.Command17.Enabled
| Form1.Command17.Enabled = True

# ODDITY(dictionary-grows): by the menu this time, which locks nothing. Every word is there twice, and once
# more when the entry is used with the panel open; a click on any of them shows the first record.
click Form1.cc2
get Form1.frmd.Visible
| Form1.frmd.Visible = True
get Form1.Command17.Enabled
| Form1.Command17.Enabled = True
get Form1.dwd.Caption
| Form1.dwd.Caption = "Ephod"
get Form1.lstd.ListCount
| Form1.lstd.ListCount = 8
click Form1.cc2
get Form1.lstd.ListCount
| Form1.lstd.ListCount = 12
click Form1.lstd 9
get Form1.ddf.Caption
| Form1.ddf.Caption = "A light"

# A word that the file does not have any more names itself, and leaves the entry before.
@write cdxdic.dat "\"Ark\",\"A chest, or a ship\",\"Make thee an ark.\",\"Genesis 6:14\"\r\n"
click Form1.lstd "Lamp"
get Form1.dwd.Caption
| Form1.dwd.Caption = "Lamp"
get Form1.ddf.Caption
| Form1.ddf.Caption = "A light"

# With too few fields in a record those of the next one fill it up, and the last one cannot be filled.
# ODDITY(concordance-missing): only a missing file is told as the concordance's.
@write cdxdic.dat "\"Ark\",\"A chest\"\r\n\"Lamp\",\"A light\",\"They lit a lamp.\",\"Genesis 3:1\"\r\n"
click Form1.Command19
click Form1.Command17
| message "An error (62 ) has occured during proccessing your request. Click HELP, for information on possible sources causing the error. " "Lectern 2"
| beep
get Form1.frmd.Visible
| Form1.frmd.Visible = False
get Form1.Command17.Enabled
| Form1.Command17.Enabled = True
get Form1.lstd.ListCount
| Form1.lstd.ListCount = 13
get Form1.lstd.List(12)
| Form1.lstd.List(12) = "Ark"
@delete cdxdic.dat
click Form1.cc2
| message "CONCORD.DAT missing from DATA" "Lectern 2"
| beep
get Form1.frmd.Visible
| Form1.frmd.Visible = False

# The file comes back, and nothing of it was left open.
@write cdxdic.dat "\"Ark\",\"A chest\",\"Make thee an ark.\",\"Genesis 6:14\"\r\n"
click Form1.cc2
click Form1.lstd 13
get Form1.dex.Caption
| Form1.dex.Caption = "Make thee an ark. :  Genesis 6:14"

# Gone once more with the panel open: a click has nobody to tell.
@delete cdxdic.dat
click Form1.lstd 13
| run-time error 53 "File not found"
| end
