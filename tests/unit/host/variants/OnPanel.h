#pragma once

#include "DisplayAPI/Widget.h"
#include "host/Phone.h"

#include <gtest/gtest.h>

#include <string>

namespace test {

/// A telephone with this panel, on which the test's thread is the GUI thread, as long as it lives.
class OnPanel {
public:
    explicit OnPanel(host::Variant variant)
    {
        host::setVariant(variant);
        DisplayAPI::Widget::setGuiThreadId();
    }
    OnPanel(const OnPanel&) = delete;
    OnPanel& operator=(const OnPanel&) = delete;
    ~OnPanel()
    {
        DisplayAPI::Widget::setGuiThreadId(0);
        host::setVariant(host::Variant::PLAIN);
    }
};

/// A command as a screen's text has it, in a bar or below a form.
inline std::string inBar(const std::string& command)
{
    return "subitem:\nname:MenuCommand\nstring0:" + command + "\nendsubitem:\n";
}

} // namespace test

#define INSTANTIATE_ON_PANELS(suite)                                                                                   \
    INSTANTIATE_TEST_SUITE_P(Panel, suite,                                                                             \
                             testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),         \
                             [](const auto& tested) { return std::string(host::nameOf(tested.param)); })
