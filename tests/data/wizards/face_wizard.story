# The face wizard.

-- OpenDocument
load
|class CfgPatches
|{
|};
|
path D:\addons\MyAddon\config.cpp
addon MyAddon
file /program/Bfdata/kitwright/Kitwrightface.dat
|P,0; plain text
|T,2
|W,1
picture-file C:/pics/head1.jpg 40 20
picture-file /p/wide.JPG.bak 4000 1000
file /p/none.jpg no picture
open

== ExampleIsWrittenOnceAndItsPictureCopied
after OpenDocument
disabled seznam2 txtnazev Text1 cmddel cmddelall
click Option2
click Command1
enabled seznam2 txtnazev Text1 cmddel cmddelall
shows propertyHelp plain text
type txtnazev MyHead
tick seznam2 0
type Text1 Red head
disabled cmdopenimage
tick seznam2 1
enabled cmdopenimage
will-cancel
will-pick path C:\pics\head1.jpg
click cmdopenimage
shows Text1
click cmdopenimage
filter of Soubory typu JPG|*.jpg*
picture-ratio 2
click cmdok
document
|class CfgPatches
|{
|};
|
|class CfgFaces
|{
|   class MyHead
|   {
|      P = "Red head";
|      T = "head1.jpg";
|   };
|};
|
copied C:/pics/head1.jpg D:/addons/MyAddon/head1.jpg
saves 0
colourings 1
hidden
shows seznam1
disabled seznam2 txtnazev Text1 cmddel cmddelall cmdopenimage
# The faces are written: a second OK writes none.
click cmdok
document
|class CfgPatches
|{
|};
|
|class CfgFaces
|{
|   class MyHead
|   {
|      P = "Red head";
|      T = "head1.jpg";
|   };
|};
|
|class CfgFaces
|{
|};
|
undo
undo
document
|class CfgPatches
|{
|};
|

== KindsSayHowValuesAreWrittenAndPicturesAreCopiedWhateverIsTicked
after OpenDocument
file /p/unticked.jpg bytes
click Option2
click Command1
tick seznam2 0
type Text1 Žlutá "hlava"
tick seznam2 1
type Text1 C:\pics\head1.jpg
row seznam2 2
type Text1 5
click Command1
type txtnazev Out
row seznam2 1
type Text1 /p/unticked.jpg
clear seznam1 1
click Command1
tick seznam2 0
tick seznam2 1
type Text1 bare.jpg
tick seznam2 2
type Text1 {1, 2}
click cmdok
document
|class CfgPatches
|{
|};
|
|class CfgFaces
|{
|   class Face 1
|   {
|      P = "Žlutá "hlava"";
|      T = "head1.jpg";
|   };
|   class Face 3
|   {
|      P = "";
|      T = "";
|      W = {1, 2};
|   };
|};
|
copied /p/unticked.jpg D:/addons/MyAddon/unticked.jpg
copied C:/pics/head1.jpg D:/addons/MyAddon/head1.jpg
writes 2

== NewAddonAsksForItsNameAndGetsAPathOfItsOwn
after OpenDocument
addon Former
will-name MyAddon
will-save-as
will-save-as /new/config.cpp
click Command1
row seznam2 1
type Text1 C:\pics\head1.jpg
click cmdok
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={};
|   };
|};
|
|class CfgFaces
|{
|   class Face 1
|   {
|   };
|};
|
path-is /new/config.cpp
saves 2
colourings 1
undo-steps 1
copied C:/pics/head1.jpg /new/head1.jpg
writes 1

== ListAndRecordsStayInStepThroughRemovals
after OpenDocument
click Command1
click Command1
click Command1
shows seznam1 Obličej 1+|Obličej 2+|Obličej 3+|
clear seznam1 1
click cmddel
shows seznam1 Face 1+|Face 3+|
# Nothing is highlighted now.
click cmddel
type txtnazev nobody's
click Command1
shows seznam1 Face 1+|Face 3+|Obličej 3+|
shows txtnazev Face 3
row seznam1 1
shows txtnazev Face 3
row seznam1 2
type txtnazev Žofie
shows seznam1 Face 1+|Face 3+|Obličej 3+|
# An emptied name is stored; a face without a name leaves the box as it is.
type txtnazev
row seznam1 0
row seznam1 2
shows txtnazev Face 1
row seznam1 2
click cmddel
row seznam1 1
click cmddel
row seznam1 0
click cmddel
shows seznam1
disabled seznam2 txtnazev Text1 cmddel cmddelall

== FacesKeepTheirOwnTicksAndValuesWhileTheWindowIsHidden
after OpenDocument
click Command1
tick seznam2 2
type Text1 first
click Command1
shows seznam2 P|T|W|
tick seznam2 0
click cmdstorno
hidden
show
row seznam1 0
shows seznam2 P|T|W+|
# The first property is highlighted.
shows Text1
row seznam2 2
shows Text1 first
row seznam1 1
shows seznam2 P+|T|W|
undo-steps 0

== PreviewFollowsTheValueAndKeepsProportions
after OpenDocument
click Command1
row seznam2 1
type Text1 /p/wide.JPG.bak
row seznam2 0
no-picture
row seznam2 1
picture-ratio 4
resize 900 1200
picture-ratio 4
# What is no picture leaves the preview as it was.
will-pick path /p/none.jpg
will-pick path /p/missing.jpg
click cmdopenimage
picture-ratio 4
click cmdopenimage
picture-ratio 4
# A value that names no picture clears it.
row seznam2 0
no-picture
row seznam2 1
no-picture
