# The weapon wizard (Form1) and the ammunition wizard (Form3).

-- OpenDocument
load
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={};
|   };
|};
|
path D:\addons\MyAddon\config.cpp
addon MyAddon
file /program/Bfdata/kitwright/kitwrightweapon.dat
|shotSpeed,1; metres a second
|shapeFile,2
|displayText
file /program/Bfdata/kitwright/addweapons.dat
|Riffle
|BaseGun
|ak47
file /program/Bfdata/kitwright/kitwrightammo.dat
|shotSpeed,1
|shapeFile,2
file /program/Bfdata/kitwright/addammo.dat
|BaseGun
file C:/models/mygun.p3d model

-- EnteredExample
click Option2
click cmdadd
row List1 0
type txtname MyGun
choose Combo1 BaseGun
tick List2 0
type txthodnota 900
tick List2 1
type txthodnota C:\models\mygun.p3d

== ExampleIsRegisteredWrittenAndItsModelCopied
after OpenDocument
open Form1
disabled cmddel cmddelall txtname txthodnota Command6 Combo1 List2
after EnteredExample
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={MyGun};
|   };
|};
|
|class CfgWeapons
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|};
|
copied C:/models/mygun.p3d D:/addons/MyAddon/mygun.p3d
hidden
colourings 1
saves 0
# Nothing was cleared: a second OK writes the same again, as one more undo step.
show
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={MyGun,MyGun};
|   };
|};
|
|class CfgWeapons
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|};
|
|class CfgWeapons
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|};
|
undo
undo
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
undo-steps 0

== AmmunitionHasListsOfItsOwnAndIsNotRegistered
after OpenDocument
open Form3
after EnteredExample
shows List1 Munice 1+|
will-cancel
will-pick path /m/mygun.p3d
click Command6
shows txthodnota C:\models\mygun.p3d
click Command6
filter of Všechny soubory|*.*
click Command1
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
|class CfgAmmo
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "/m/mygun.p3d";
|   };
|};
|

== TickedClassesStandWithTheirTickedProperties
after OpenDocument
file /m/left.p3d model
open Form1
after EnteredExample
# A class that is not ticked, with a file that must stay where it is.
click cmdadd
row List1 1
type txtname Left
tick List2 1
type txthodnota /m/left.p3d
clear List1 1
# A class without a name and base class, and values that are written as they stand.
click cmdadd
row List1 2
tick List2 0
tick List2 1
tick List2 2
type txthodnota "ěš\č"
click cmdadd
row List1 3
type txtname Third
choose Combo1 Riffle
tick List2 0
type txthodnota not written
clear List2 0
tick List2 1
type txthodnota C:\not "here\x.P3D
# A file that is named again is copied once.
click cmdadd
row List1 4
type txtname Fourth
choose Combo1 ak47
tick List2 1
type txthodnota C:\models\mygun.p3d
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={Fourth,Third,,MyGun};
|   };
|};
|
|class CfgWeapons
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|   class : 
|   {
|      shotSpeed = ;
|      shapeFile = "";
|      displayText = "ěš\č";
|   };
|   class Third: Riffle
|   {
|      shapeFile = "C:\not "here\x.P3D";
|   };
|   class Fourth: ak47
|   {
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|};
|
writes 1

== DeclarationsStandInFrontOfEachClassThatIsInTheTree
after OpenDocument
class-tree
|* W *
|   Default
|      BaseGun
open Form1
after EnteredExample
click cmdadd
row List1 1
type txtname Other
choose Combo1 Riffle
click Check1
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={Other,MyGun};
|   };
|};
|
|class CfgWeapons
|{
|
|   class Default {};
|   class BaseGun: Default {};
|
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|   class Other: Riffle
|   {
|   };
|};
|
colourings 1
undo-steps 1

== NewAddonAsksUntilThereIsAPathAndForANameOnlyIfThereIsNone
after OpenDocument
open Form1
addon
will-name MyAddon
will-save-as
will-save-as
will-save-as /new/config.cpp
click Option1
click Command1
saves 3
path-is /new/config.cpp
undo-steps 1
will-save-as
will-save-as /newer/config.cpp
click Command1
saves 5
path-is /newer/config.cpp
undo-steps 2
names-asked 1
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
|class CfgWeapons
|{
|};
|

== NewAddonWhoseSaveFailsLeavesTheDocument
after OpenDocument
open Form1
after EnteredExample
click Option1
saving-fails
will-save-as /new/config.cpp
click Command1
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
undo-steps 0
writes 0

== ListAndRecordsStayInStepThroughRemovals
after OpenDocument
open Form1
click cmddel
click Option2
click cmdadd
click cmdadd
click cmdadd
row List1 0
type txtname First
row List1 1
type txtname Second
row List1 2
type txtname Third
tick List2 2
row List1 1
click cmddel
shows List1 Zbraň 1+|Zbraň 3+|
# Nothing is highlighted now.
click cmddel
click cmdadd
shows List1 Zbraň 1+|Zbraň 3+|Zbraň 3+|
row List1 1
shows txtname Third
shows List2 shotSpeed|shapeFile|displayText+|
row List1 2
shows txtname
shows List2 shotSpeed|shapeFile|displayText|
clear List1 1
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={,First};
|   };
|};
|
|class CfgWeapons
|{
|   class First: 
|   {
|   };
|   class : 
|   {
|   };
|};
|
row List1 0
click cmddel
row List1 0
click cmddel
row List1 0
click cmddel
disabled cmddel cmddelall txtname txthodnota Command6 Combo1 List2
click cmdadd
shows List1 Zbraň 1+|
enabled cmddel cmddelall txtname txthodnota Command6 Combo1 List2
click cmdadd
click cmddelall
shows List1
disabled cmddel cmddelall txtname txthodnota Command6 Combo1 List2

== ChoicesReachTheHighlightedClassOnly
after OpenDocument
open Form1
click Option2
click cmdadd
type txtname nobody's
tick List2 0
type txthodnota nobody's
click cmdadd
row List1 0
shows List2 shotSpeed|shapeFile|displayText|
# The box shows a base class that was not chosen; choosing it stores it.
shows Combo1 ak47
choose Combo1 ak47
row List1 1
choose Combo1 Riffle
type txtname Second
row List1 0
shows Combo1 ak47
type txtname First
row List2 1
enabled Command6
row List2 0
disabled Command6
shows propertyHelp metres a second
type txthodnota žluť "1\"
row List2 2
shows txthodnota
row List2 0
shows txthodnota žluť "1\"
click Command1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={Second,First};
|   };
|};
|
|class CfgWeapons
|{
|   class First: ak47
|   {
|   };
|   class Second: Riffle
|   {
|   };
|};
|

== ModelsOfAnUnsavedDocumentGoWhereItIsSavedOrNowhere
after OpenDocument
open Form1
after EnteredExample
# Saving is cancelled.
path
click Command1
saves 1
writes 0
undo
# The folder refuses the copy.
unwritable /locked/mygun.p3d
will-save-as /locked/config.cpp
click Command1
saves 2
writes 0
undo
path
will-save-as /saved/config.cpp
click Command1
saves 3
copied C:/models/mygun.p3d /saved/mygun.p3d
writes 1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={MyGun};
|   };
|};
|
|class CfgWeapons
|{
|   class MyGun: BaseGun
|   {
|      shotSpeed = 900;
|      shapeFile = "\MyAddon\mygun.p3d";
|   };
|};
|

== MissingCataloguesLeaveEmptyListsAndForeignCharactersStayOut
after OpenDocument
no-files
addon
open Form1
click Option2
click cmdadd
row List1 0
type txtname Žluť→
click Command1
names-asked 1
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={};
|     weapons[]={Žluť};
|   };
|};
|
|class CfgWeapons
|{
|   class Žluť: 
|   {
|   };
|};
|

== EnterGoesOnAndEscHidesWithoutForgetting
after OpenDocument
open Form1
after EnteredExample
press-key Return txtname
undo-steps 0
focus Combo1
press-key Escape Combo1
hidden
show
shows txtname MyGun
close
hidden
shows List1 Zbraň 1+|
