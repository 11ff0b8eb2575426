#pragma once

#include "widgets/KestrelListBox.h"

/// The list of the 240 x 128 panel and its narrow form: a title, six rows, a scroll bar where there are more.
class KestrelListBoxWithTitle : public KestrelListBox {
public:
    KestrelListBoxWithTitle();
};
