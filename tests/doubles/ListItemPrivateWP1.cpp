#include "variants/list/ListItemPrivateWP1.h"

#define ROW ListItemPrivateWP1
#define ROW_NAME "ListItemPrivateWP1"
#include "doubles/ListItemMembers.inc"
