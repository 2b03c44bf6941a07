# The stringtable editor.

-- Open
file /program/Bfdata/kitwright/languages.dat English,1␍␊Czech␍␊
open

== AnAuthorBuildsATable
after Open
enabled Command1 Command4 Command5 Text1
disabled List1 List2 Command2 Command3 Text2
keys Text1 LOST
click Command1
enabled List1 List2 Command1 Command2 Command3 Command4 Command5 Text1 Text2
shows Text1
keys Text1 NAME_A
tip 0 NAME_A
press List2 0
keys Text2 Gun
press List2 1
type Text2 Puška
click Command1
type Text1 NAME_B
clear List1 1
writes-to /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_NAME_A,Gun,Puška␍␊
tick List1 1
writes-to /a/Stringtable.csv
|LANGUAGE,English,Czech
|$STRM_NAME_A,Gun,Puška
|$STRM_NAME_B,,
|
click Command5
saves 1
visible
click Command4
hidden
shows List1 String 1+|String 2+|

== AnotherKeyLeavesTheTextUntilALanguageIsClicked
after Open
click Command1
press List2 0
type Text2 first
click Command1
shows Text2 first
press List2 0
shows Text2
row List1 0
shows Text2
keys Text2 x
writes-to /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_,x,␍␊$STRM_,,␍␊

== RemovedKeysLeaveTheOthersInStep
after Open
click Command1
type Text1 A
click Command1
type Text1 B
click Command1
type Text1 C
row List1 1
click Command2
# Nothing is highlighted now.
type Text1 stored nowhere
click Command2
click Command1
shows List1 String 1+|String 3+|String 3+|
writes-to /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_A,,␍␊$STRM_C,,␍␊$STRM_,,␍␊
row List1 2
click Command2
row List1 1
click Command2
row List1 0
click Command2
enabled Command1 Command4 Text1
disabled List1 List2 Command2 Command3 Command5 Text2
click Command1
shows List1 String 1+|
enabled List1 List2 Command1 Command2 Command3 Command4 Command5 Text1 Text2
click Command3
shows List1
writes-to /a/Stringtable.csv LANGUAGE,English,Czech␍␊

== AMissingLanguagesFileGivesKeysWithoutTexts
open
click Command1
type Text1 A
type Text2 lost
writes-to /a/Stringtable.csv LANGUAGE,␍␊$STRM_A,␍␊

== OpeningADocumentShowsItsTable
after Open
file /a/Stringtable.csv LANGUAGE,English,Klingon␍␊//x␍␊$STRM_A,"a ␊b",k␍␊$STRM_B,b␍␊
click Command1
click Command1
type Text1 NEVER
clear List1 1
row List1 0
click Command2
read-table /a/config.cpp
shows List1 String 2|String 2+|String 3+|
tip 1 A
shows List2 English|Czech|Klingon|
no-row List1
# Looking at everything changes nothing.
row List1 0
press List2 0
press List2 1
press List2 2
row List1 1
press List2 0
press List2 1
press List2 2
row List1 2
press List2 0
press List2 1
press List2 2
writes-to /a/Stringtable.csv LANGUAGE,English,Klingon␍␊//x␍␊$STRM_A,"a ␊b",k␍␊$STRM_B,b␍␊
row List1 1
press List2 0
keys Text2 c
writes-to /a/Stringtable.csv LANGUAGE,English,Klingon␍␊//x␍␊$STRM_A,"ca ␊b",k␍␊$STRM_B,b␍␊
read-table /c/config.cpp
shows List1 String 2|
shows List2 English|Czech|

== KeysOfAFolderThatIsSavedToAreListed
after Open
file /b/Stringtable.csv LANGUAGE,English,Klingon␍␊$STRM_B,b,k␍␊
writes-to /b/Stringtable.csv LANGUAGE,English,Klingon␍␊$STRM_B,b,k␍␊
shows List1 String 1+|
shows List2 English|Czech|Klingon|
enabled List1 List2 Command1 Command2 Command3 Command4 Command5 Text1 Text2

== TakesOnlyWhatTheFileCanHold
after Open
click Command1
press List2 0
type Text2 a–日b
shows Text2 a–b
keys Text2 x
type Text1 K日K
writes-to /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_KK,xa–b,␍␊
