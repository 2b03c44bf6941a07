# The vehicle wizard.

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

-- OpenWindow
file /program/Bfdata/kitwright/vehiclehelp.dat
|armorValue,0; points
|gunBeg,0; other
|Turret/gunBeg,0; "memory point"
file /program/Bfdata/kitwright/addvehicles.dat
|Zebra
|BaseTank
after OpenDocument
open
|Vehicle
|   armorValue
|   Turret
|      gunBeg
|   crewCount

-- EnteredExample
tick-node armorValue
type txthodnota 300
tick-node gunBeg
type txthodnota 0.5
tick-node crewCount
type txthodnota 2
type txtjmeno MyTank
row List1 1

== ExampleIsRegisteredAndWritten
after OpenWindow
class-tree
|* V *
|   BaseTank
click Option2
after EnteredExample
ticked Turret
ticked Vehicle
click Command2
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={MyTank};
|     weapons[]={};
|   };
|};
|
|
|class CfgVehicles
|{
|   class MyTank: BaseTank
|   {
|      armorValue = 300;
|      class Turret
|      {
|         gunBeg = 0.5;
|      };
|      crewCount = 2;
|   };
|};
hidden
colourings 1
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
# Clear All forgets the values and nothing else.
click Check1
click Command4
shows txthodnota 2
click Command2
document
|class CfgPatches
|{
|  class MyAddon
|  {
|     units[]={MyTank};
|     weapons[]={};
|   };
|};
|
|
|class CfgVehicles
|{
|
|
|   class MyTank: BaseTank
|   {
|      armorValue = ;
|      class Turret
|      {
|         gunBeg = ;
|      };
|      crewCount = ;
|   };
|};

== NewAddonWhoseSaveFailsLeavesTheDocument
after OpenWindow
after EnteredExample
saving-fails
will-save-as /new/config.cpp
click Command2
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

== ClickedNodeIsTheOneThatTheValueBoxEdits
after OpenWindow
type txthodnota nobody's
node gunBeg
shows txthodnota
shows lblrodic Turret
# Only the direct parent is ticked.
ticked Turret
not-ticked gunBeg
not-ticked Vehicle
type txthodnota "ústí\1"
node Turret
disabled txthodnota
shows lblrodic Vehicle
# A tick is a click on its node, clearing it as well.
tick-node gunBeg
shows txthodnota "ústí\1"
enabled txthodnota
clear-node Turret
not-ticked Turret
shows lblrodic Vehicle
# So is a click on the node that is current already.
node gunBeg
clear-node Turret
node gunBeg
ticked Turret
clear-node Turret
not-ticked Turret
node gunBeg
click-node gunBeg
ticked Turret
# The root has no parent.
node Vehicle
shows lblrodic
tip gunBeg "memory point"
tip armorValue points

== BrowsedModelIsCopiedWhenWantedAndNamedByItsPlace
after OpenWindow
file C:/models/tank.p3d model
path
addon
will-save-as
will-save-as /addon/config.cpp
will-name MyAddon
node crewCount
will-pick path C:\models\tank.p3d
will-answer yes
click Command1
shows txthodnota "\MyAddon\tank.p3d"
copied C:/models/tank.p3d /addon/tank.p3d
saves 2
will-pick path C:\models\tank.p3d
will-answer no
click Command1
shows txthodnota "\MyAddon\tank.p3d"
writes 1
# A file that is not there is taken for one of the game's own.
will-pick path C:\models\gone.p3d
will-cancel
click Command1
click Command1
shows txthodnota "\data3D\gone.p3d"
questions 2
names-asked 1

== WithoutCataloguesTheBareClassIsWritten
after OpenDocument
open
click Command4
# "Insert as New Addon" is selected at first.
will-save-as /new/config.cpp
click Command2
path-is /new/config.cpp
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
|
|class CfgVehicles
|{
|   class : 
|   {
|   };
|};
