#pragma once

#include "DisplayAPI/Widget.h"

#include <string>

namespace test {

/// Reads the name that facades keep to themselves. Never made: a class that derives from a facade in order to do so
/// would still be under construction when the GUI thread first calls it.
class WidgetName : public DisplayAPI::Widget {
public:
    static const std::string& of(const DisplayAPI::Widget& widget) { return widget.*&WidgetName::name; }
};

} // namespace test
