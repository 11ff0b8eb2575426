#pragma once

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"

#include <string>

/// Rows keep the text they were made with: puts a new row in the place of `row`, and returns it. From any thread.
inline DisplayAPI::ListItem* rewrite(DisplayAPI::List& list, DisplayAPI::ListItem* row, const std::string& text)
{
    auto* fresh = new DisplayAPI::ListItem(text, false);
    list.replace(row, fresh);
    delete row; // waits until the list has let go of it
    return fresh;
}
