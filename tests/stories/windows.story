# What the windows say at first: the menu, and the text on every control. ODDITY(kept-spelling)
menu
  | "&File" ff |   "&Bookmarker" xb |   "-" ff0 |   "E&xit" xx
  | "C&odex" cc |   "&Notes" cc0 |   "&Concordance" cc1 |   "&Dictionary" cc2 |   "&Search" cc3 |   "&Trivia" cc4
  | "Codex &Stories" dd1 |   "The Beginning" dd2 |     "Adam and Eve" ss3 |     "Cain and Abel" sss4
  |     "The Tower of Babel" ss4 |   "Abraham" dd3 |     "God's Covenent" ss1 |     "Three Visitors" ss5
  |     "Tested" ss6 |   "Noah" dd4 |     "The Flood" ss7 |     "Noah's Ark" sss8 |     "God's Covenent" ss2
  |   "Moses" ddd8 |     "The Ten Commandments" jj8 |     "The Burning Bush" ss8 |     "Crossing the Sea" ss9
  |     "At Sinia" sss1 |   "David" dd5 |     "And Samuel" aaa3 |     "And Goliath" sss3 |     "And Saul" aaa4
  |     "Becomes a King" aaa5 |   "Peter" dd6 |     "Disowns Jesus" ddd1 |     "Reinstated" aaa9
  |     "Heals a Beggar" aaa8 |     "Escaping from Prison" sss7 |   "Paul" dd7 |     "First Journey" dddd5
  |     "In Prison" ddd4 |     "Shiprecked" ddd3 |     "Preaches in Rome" ddd2 |   "Jesus" dd8 |     "His Birth" gg5
  |     "Changing Water to Wine" gg1 |     "Healing the Sick" ff9 |     "Walking on Water" ff8
  |     "At the Temple" ff6 |     "The Last Supper" ff5 |     "On Trial" ff4 |     "Crusifiction" ff3
  |     "After his Death" ff2 |     "Return to Heaven" ff1
  | "O&ptions" oo |   "Fonts/Desktop" oo11 |   "Save settings on exit" oo12 checked
  | "Internet" webb |   "Lectern" webb1 |   "My Main Page" webb2
  | "&Help" xh |   "About" aboutlt |   "Help" xh2
start
  Label22 "BOOK MARK", Frame2 "make concordance", Frame5 "pictures", Command3 "&Book Mark", Command16 "&Search"
  Command8 "&Concordance", Command2 "Tri&via", Command14 "&Notes", Command17 "&Dictionary", Command1 "E&xit"
  LBLVR "King James Version", Label30 "Book of", Label21 "Chapter", Label34 "KJV", Label35 "NEW", Command34 "Close"
  Combo1 "Georgia", Combo2 "12", Combo3 "Regular", lblsetting(0) "Fonts and desktop", lblsetting(1) "Font"
  lblsetting(2) "Size", lblsetting(3) "Style", lblsetting(4) "Colors", lblf(0) "A B C D E F G"
  lblf(1) "a b c d e f g", Option2 "Front Color", Option3 "Back Color", Command36 "Save", Command24 "Close"
  Command12 "make baokschap.txt", lblfor "for", lbland "and", SSOption1 "Book", op1 "Codex", Command22 "Search"
  Command15 "How long will it take?", lblmatches "Matches", text5 "00", cmdadd "Add to Concordance"
  Command20 "Close Search", text7 "Chapter", Command25 "Cancel", wrd "Label32", lblwords "Words"
  lblw "click on word", lblmatches2 "Matches ", text6 "00", Command9 "Close Concordance"
  Command21 "Delete Word/Phrase", Command18 "Command18", Command27 "Make", Command23 "Cancel", lbln "-1"
  Command13 "Command13", dwd2 "Word", ddf2 "Definition", dex2 "used in a verce", dwd "Word", ddf "Definition"
  dex "used in a verce", Command19 "Close Dictionary", lbltrivia "CODEX TRIVIA", Label25 "Press Question to begin"
  Command29 "Question", Command31 "Answer", Command28 "Close", Label19(3) "BOOK MARKER", C(4) "Chapter"
  Command5 "Open", Command6 "Update", Command10 "New", Command11 "Delete", Command7 "Close", Command30 "Print Page"
  Label19(4) "HELP", lblhp(0) "Book Mark", lblhp(1) "Search", lblhp(2) "Notes", lblhp(3) "Pictures"
  lblhp(4) "Concordance", lblhp(5) "Dictionary", lblhp(6) "Trivia", lblhp(7) "Paint"
  txthelp "Lectern 2, by the makers of Lectern, 2026.…, at the top menu bar.", Command4 "Close", Command44 "Close"
  lbltm "0", lblendpic "4", Command32 "Paint", Command37 "Close Pictures", SSCommand4 "‹", SSCommand3 "›"
  Command26 "pictures", Label2 "pictures", Label3(0) "Name", Label3(1) "Book Chapter: Verce", Label3(2) "Author"
  SSCommand1 "‹", SSCommand2 "›", Command49 "Add 2 Picture File", Command45 "Remove Duplicate"
  Command47 "Remove All", Command46 "Close", Command38 "Command38", Command40 "list?", NME "NME"
  Command33 "CONVERT FILE", Picture1 hidden, frms hidden, frmc hidden, frmd hidden, Picture17 hidden, Picture23 hidden
  frmhelp hidden, FRMNOTE hidden, Picture2 picture 190x44, Picture2.Point(169,21) 9539985, Picture2.Point(162,14) 9539985
  Form2.Height 7050, Text1 "Text1", Command1 "Print", Command2 "Cancel"
  Form3.lblname "NAME", lblc "Label1", txthelp "RichTextBox1\r\n", Command1 "Open", Command13 "Save"
  Form3.Command12 "Close", Label17 "Notes", Label2 "Click file above to open or Create New File"
  Form3.Command2 "Create New File", Command3 "Close"
  Form4.cmdm(0) "      +", cmdm(1) "      -", txt5 "0", Frame7 "   Original               Saves  ", clrboxs(0) "x"
  Form4.clrboxs(1) " x", clrboxs(23) "X", Command4 "More Colors", Command3 "Save Pallette", Label2(0) "Red"
  Form4.picbox picture 533x363, Label2(1) "Blue", Label2(2) "Green", Clear "Hide Color Bars", Frame5 "Paint Brush Size", Command5 "New"
  Form4.Command2 "Save Picture", Command1 "Close Paint"
  Form5.Command1 "Print"
