#include "variants/list/ListItemPrivate.h"

#define ROW ListItemPrivate
#define ROW_NAME "ListItemPrivate"
#include "doubles/ListItemMembers.inc"
