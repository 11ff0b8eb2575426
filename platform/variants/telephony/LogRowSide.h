#pragma once

#include "DisplayAPI/Export.h"

#include <memory>
#include <string>

class KestrelListBoxItem;

namespace DisplayAPI {

/// The toolkit row of a call log, and what it says; each platform's own.
struct LogRow;

/// What the GUI-thread sides of call logs have in common, whatever they say. GUI thread only.
template <typename Interface>
class DISPLAYAPI_EXPORT LogRowSide : public Interface {
public:
    ~LogRowSide() override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    KestrelListBoxItem* getKestrelListItem() override;

protected:
    explicit LogRowSide(std::unique_ptr<LogRow> row);

    LogRow& row() const { return *mRow; }

private:
    std::unique_ptr<LogRow> mRow;
};

} // namespace DisplayAPI
