# The older builder reads every book under its short name from the data folder; what it had written when one is
# missing stays.
@data empty
@write conc.txt | grace | song
@write concord.dat "old"
@write Genesis.txt
  | Chapter 1
  | 1   of grace and peace
  | 2   graceful grace of it
  |
  | 3   grace
  | Song of it
  | 4   a song of it
click! Form1.Command13 | run-time error 53 "File not found" | end
@show concord.dat | " GRACE","Genesis",1,1
