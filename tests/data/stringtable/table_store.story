# A table of English and Czech, and the files it meets. Every save is done twice; the second one changes nothing.

== PlainFormatWhenNothingWasRead
add NAME_A
text 0 0 Gun
text 0 1 Puška
add NAME_B
text 1 0 no
clear 1
add
text 2 0 a,b
text 2 1 "c␍␊d
save /a/Stringtable.csv
holds /a/Stringtable.csv
|LANGUAGE,English,Czech
|$STRM_NAME_A,Gun,Puška
|$STRM_,a,b,"c
|d
|

== BackToWhatItWas
put /a/Stringtable.csv LANGUAGE,English␊$STRM_A,"x␊y"␊
open /a/
text 0 0 z
text 0 0 x␍␊y
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␊$STRM_A,"x␊y"␊

== AnotherKeyName
put /a/Stringtable.csv LANGUAGE,English␍␊ "$STRM_A",x␍␊
open /a/
key 0 B
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␍␊ "$STRM_B",x␍␊

== RaggedRowGrows
put /a/Stringtable.csv
|LANGUAGE,German,Czech,English
|$STRM_A
|$STRM_B,x,,,,
|
open /a/
text 0 0 e
save /a/Stringtable.csv
holds /a/Stringtable.csv
|LANGUAGE,German,Czech,English
|$STRM_A,,,e
|$STRM_B,x,,,,
|

== MissingLanguageComesBehindWhatRaggedRowsHold
put /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,big, bad␍␊
open /a/
text 0 1 c
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English,,Czech␍␊$STRM_A,big, bad,c␍␊

== UntickedKeysTextBringsNoColumn
put /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a␍␊
open /a/
text 0 1 c
clear 0
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␍␊

== RemovedAmongOtherLinesTheLastOneWithoutAnEnd
put /a/Stringtable.csv
|LANGUAGE,English
|//1
|$STRM_A,a
|//2
|$STRM_B,b
open /a/
remove 1
save /a/Stringtable.csv
holds /a/Stringtable.csv
|LANGUAGE,English
|//1
|$STRM_A,a
|//2
|

== AllRemoved
put /a/Stringtable.csv
|LANGUAGE,English
|//1
|$STRM_A,a
|STR_B,b
|$STRM_B,b
|
|
open /a/
remove-all
save /a/Stringtable.csv
holds /a/Stringtable.csv
|LANGUAGE,English
|//1
|STR_B,b
|
|

== AddedInFrontOfEmptyLinesAtTheEnd
put /a/Stringtable.csv LANGUAGE,Czech,English␊$STRM_A,a␊//end␊␊ ␊
open /a/
add B
text 1 0 e
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,Czech,English␊$STRM_A,a␊//end␊$STRM_B,,e␊␊ ␊

== AddedBehindALastLineWithoutAnEndThenRemoved
put /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a␍␊//end
open /a/
add
remove 1
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a␍␊//end

== AddedBehindARecordWithoutALineEnd
put /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a
open /a/
add
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a␍␊$STRM_,␍␊

== FileWithoutAHeaderGetsOneWithItsFirstChange
put /a/Stringtable.csv $STRM_A,a,b␍␊
open /a/
text 0 1 c
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_A,a,c␍␊

== EmptyFile
put /a/Stringtable.csv
open /a/
add
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_,,␍␊

== TakesInTheTableOfAnotherFolder
put /b/Stringtable.csv
|LANGUAGE,Klingon,English
|//theirs
|$STRM_OLD,k,o
|$STRM_BOTH,k,theirs,extra
|STR_X,1
|
add NEW
text 0 0 n
add BOTH
text 1 0 mine
add OLD
text 2 0 not ticked
clear 2
save /b/Stringtable.csv
keys are NEW BOTH OLD OLD
texts 1 mine||k|
holds /b/Stringtable.csv
|LANGUAGE,Klingon,English
|$STRM_NEW,,n
|$STRM_BOTH,k,mine,extra
|//theirs
|$STRM_OLD,k,o
|STR_X,1
|

== MovesItsOwnFileUnderTheHeaderOfTheOther
put /a/Stringtable.csv
|LANGUAGE,English,French
|//same
|STR_A,e,f
|$STRM_A,"e",f
|$STRM_BOTH,mine,
|//end
put /b/Stringtable.csv
|LANGUAGE,Czech,English
|//same
|$STRM_BOTH,c,theirs
|$STRM_B,c,e
|//end
|
open /a/
save /b/Stringtable.csv
holds /b/Stringtable.csv
|LANGUAGE,Czech,English,French
|STR_A,,e,f
|$STRM_A,,"e",f
|//same
|$STRM_BOTH,c,mine
|$STRM_B,c,e
|//end
|

== TakesInWhatSomeoneElseChangedSince
put /a/Stringtable.csv
|LANGUAGE,English,Czech
|$STRM_A,a,a
|$STRM_B,b,b
|$STRM_C,c,c
|$STRM_D,d,d
|
open /a/
text 0 0 mine
key 1 BB
remove 2
clear 2
put /a/Stringtable.csv
|LANGUAGE,Czech,English
|//new
|$STRM_A,theirs,a
|$STRM_B,x,b
|$STRM_C,c,c
|$STRM_D,d,d
|$STRM_E,e,e
|
save /a/Stringtable.csv
holds /a/Stringtable.csv
|LANGUAGE,Czech,English
|//new
|$STRM_A,theirs,mine
|$STRM_BB,x,b
|$STRM_E,e,e
|

== AnotherDocumentTakesTheFormerOnesKeysAway
put /a/Stringtable.csv LANGUAGE,English,Klingon␍␊$STRM_A,a,k␍␊
put /b/Stringtable.csv LANGUAGE,English␍␊$STRM_B,b␍␊
add NEVER
text 0 0 n
clear 0
open /a/
languages are English|Czech|Klingon|
add SAVED
save /a/Stringtable.csv
add LATE
text 3 0 l
open /b/
keys are NEVER LATE B
languages are English|Czech|
open /nothing/
keys are NEVER LATE
save /nothing/Stringtable.csv
holds /nothing/Stringtable.csv LANGUAGE,English,Czech␍␊$STRM_LATE,l,␍␊

== NeverWritesOverWhatItCouldNotRead
put /a/Stringtable.csv L␀A␀,␀
cannot-open /a/
add NEW
text 0 0 n
cannot-save /a/Stringtable.csv
holds /a/Stringtable.csv L␀A␀,␀
# The key still belongs to no file, so it stays as another document is opened.
open /nothing/
keys are NEW
# The file can be read by now.
cannot-open /a/
put /a/Stringtable.csv LANGUAGE,English␍␊$STRM_A,a␍␊
save /a/Stringtable.csv
holds /a/Stringtable.csv LANGUAGE,English␍␊$STRM_NEW,n␍␊$STRM_A,a␍␊
unwritable /b/Stringtable.csv
cannot-save /b/Stringtable.csv
absent /b/Stringtable.csv

== FindsAFileWhoseNameDiffersInLetterCase
put /a/stringtable.CSV LANGUAGE,English␍␊$STRM_A,a␍␊
open /a/
text 0 0 b
save /a/Stringtable.csv
holds /a/stringtable.CSV LANGUAGE,English␍␊$STRM_A,b␍␊
absent /a/Stringtable.csv
