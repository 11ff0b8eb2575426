#include "variants/list/ListBoxPrivateWP1.h"

#define LIST_BOX ListBoxPrivateWP1
#define LIST_BOX_NAME "ListBoxPrivateWP1"
#include "doubles/ListBoxMembers.inc"
