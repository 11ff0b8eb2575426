#include "variants/list/ListBoxPrivate.h"

#define LIST_BOX ListBoxPrivate
#define LIST_BOX_NAME "ListBoxPrivate"
#include "doubles/ListBoxMembers.inc"
