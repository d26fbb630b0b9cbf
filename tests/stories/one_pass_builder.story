# The older builder reads every book under its short name from the data folder; what it had written when one is
# missing stays.
@data empty
@write conc.txt "grace\r\nsong\r\n"
@write concord.dat "old"
@write Genesis.txt "Chapter 1\r\n1   of grace and peace\r\n2   graceful grace of it\r\n\r\n3   grace\r\nSong of it\r\n4   a song of it\r\n"
click! Form1.Command13
| run-time error 53 "File not found"
| end
@show concord.dat
| " GRACE","Genesis",1,1
