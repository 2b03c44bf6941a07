# Trees ticked at the lines with "*", and the vehicle's block that they give. The root is never written.

== PropertyAtTheLevelOfAGroupEndsTheGroup
tree
|V*
|   a*
|   G*
|      b*
|   c*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|      a = v2;
|      class G
|      {
|         b = v4;
|      };
|      c = v5;
|   };
|};

== UntickedGroupEndsTheOneBeforeItAndHidesNothing
tree
|V
|   G*
|      a
|   H
|      b*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|      class G
|      {
|      };
|         b = v5;
|   };
|};

== GroupsInGroupsAreOpenUpToTheEnd
tree
|V
|   G*
|      H*
|         a*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|      class G
|      {
|         class H
|         {
|            a = v4;
|         };
|      };
|   };
|};

== GroupsInGroupsAreClosedByAnOuterProperty
tree
|V
|   G*
|      H*
|         a*
|   b*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|      class G
|      {
|         class H
|         {
|            a = v4;
|         };
|      };
|      b = v5;
|   };
|};

== SecondHeadingIsAPropertyWithChildrenToo
tree
|V
|W*
|   a*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|   W = v2;
|      a = v3;
|   };
|};

== DigitInFrontOfACaptionReadsAsPartOfTheLevel
tree
|V
|   2nd*
block
|
|
|class CfgVehicles
|{
|[declared]   class T: B
|   {
|                                       2nd = v2;
|   };
|};
