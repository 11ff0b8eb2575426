#pragma once

#include "host/frontend/FrontEnd.h"

#include <memory>

namespace simulator {

/// Shows the panel and the keys as a page in the browser.
class WebFrontEnd final : public host::FrontEnd {
public:
    WebFrontEnd();
    ~WebFrontEnd() override;

    /// `port` is where it serves; address and token come from the environment.
    std::string start(const std::string& port) override;
    void stop() override;

private:
    struct Session;
    std::unique_ptr<Session> mSession;
};

} // namespace simulator
