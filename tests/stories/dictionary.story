# A reader looks up words that are no longer in use.
@write cdxdic.dat
  | "Ephod","A garment of the priests, worn over the robe","And he put on the ephod.","Ruth 1:1"
  | "Lamp","A light","They lit a lamp.","Genesis 3:1"
  | "lamp","A lesser light","The lamp burned.","Genesis 3:2"
  | "Ephod","Another of that name","Nobody wore it.","Jude 1:1"
set Form1.picp.Visible = True; click Form1.Command17
  frmd shown, picp hidden, Command17 disabled, Command3 disabled, Command1 enabled
  lstd: "Ephod", "Lamp", "lamp", "Ephod"

# The entry, and the shadow behind it. Case counts, and of two records of one word the first is shown.
click Form1.lstd "lamp"
  dwd "lamp", dwd2 "lamp", ddf "A lesser light", ddf2 "A lesser light", dex "The lamp burned. :  Genesis 3:2"
  dex2 "The lamp burned. :  Genesis 3:2", lstd.MousePointer 0
click Form1.lstd 3
  ddf "A garment of the priests, worn over the robe"

# ODDITY(dictionary-hourglass): a press that does not become a click leaves the hourglass.
mousedown Form1.lstd 1 0 10 10
  lstd.MousePointer 11
click Form1.lstd
  lstd.MousePointer 0, ddf "A garment of the priests, worn over the robe"
click Form1.Command19
  frmd hidden, Command17 enabled

# ODDITY(dictionary-grows): by the menu this time, which locks nothing. Every word is there twice, and three
# times when the entry is used with the panel open; a click on any of them shows the first record.
click Form1.cc2
  frmd shown, Command17 enabled, dwd "Ephod", lstd.ListCount 8
click Form1.cc2
  lstd.ListCount 12
click Form1.lstd 9
  ddf "A light"

# A word that is no longer in the file is named, above the entry shown before.
@write cdxdic.dat | "Ark","A chest, or a ship","Make thee an ark.","Genesis 6:14"
click Form1.lstd "Lamp"
  dwd "Lamp", ddf "A light"

# A record that the end of the file cuts off is reported, and a missing file as the concordance's.
# ODDITY(concordance-missing)
@write cdxdic.dat | "Ark","A chest" | "Lamp","A light","They lit a lamp.","Genesis 3:1"
click Form1.Command19; click Form1.Command17 | message "An error (62 ) has occured…" "Lectern 2" | beep
  frmd hidden, Command17 enabled, lstd.ListCount 13, lstd.List(12) "Ark"
@delete cdxdic.dat; click Form1.cc2 | message "CONCORD.DAT missing from DATA" "Lectern 2" | beep
  frmd hidden

# The file is back, and was not left open. Deleted again while the panel is open, it makes a click end the program.
@write cdxdic.dat | "Ark","A chest","Make thee an ark.","Genesis 6:14"
click Form1.cc2; click Form1.lstd 13
  dex "Make thee an ark. :  Genesis 6:14"
@delete cdxdic.dat; click Form1.lstd 13 | run-time error 53 "File not found" | end
