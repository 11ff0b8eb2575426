#pragma once

#include "host/frontend/FrontEnd.h"
#include "simulator/script/HostPhone.h"
#include "simulator/script/Script.h"
#include "simulator/script/ScriptReport.h"

#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace simulator {

/// Lets a script press the keys and look at the panel; asks the application to end when the script has.
class ScriptFrontEnd final : public host::FrontEnd {
public:
    std::string start(const std::string& fileName) override;
    void stop() override;

private:
    void run();

    Script mScript;
    std::unique_ptr<ScriptReport> mReport;
    std::optional<HostPhone> mPhone;
    std::thread mThread;
};

} // namespace simulator
