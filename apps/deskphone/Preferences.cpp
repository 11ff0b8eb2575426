#include "apps/deskphone/Preferences.h"

#include "apps/deskphone/StateFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/VariadicBind.h>

#include <utility>

namespace deskphone {

namespace {

constexpr const char* KEEP = "INSERT INTO preferences (name, value) VALUES (?, ?) "
                             "ON CONFLICT (name) DO UPDATE SET value = excluded.value";

std::map<std::string, std::string> valuesIn(StateFile& file)
{
    std::map<std::string, std::string> values;
    file.attempt([&](SQLite::Database& database) {
        if (versionOf(database) < VERSION_WITH_PREFERENCES)
            return;
        SQLite::Statement row(database, "SELECT name, value FROM preferences");
        while (row.executeStep())
            values[row.getColumn(0).getString()] = row.getColumn(1).getString();
    });
    return values;
}

} // namespace

Preferences::Preferences(std::shared_ptr<StateFile> file) : mFile(std::move(file))
{
    if (mFile != nullptr)
        mValues = valuesIn(*mFile);
}

Preferences::~Preferences() = default;

std::string Preferences::get(const std::string& name, const std::string& otherwise) const
{
    const std::lock_guard lock(mMutex);
    const auto found = mValues.find(name);
    return found != mValues.end() ? found->second : otherwise;
}

void Preferences::set(const std::string& name, const std::string& value)
{
    const std::lock_guard lock(mMutex);
    mValues[name] = value;
    if (mFile == nullptr)
        return;
    mFile->change([&](SQLite::Database& database) {
        SQLite::Statement row(database, KEEP);
        SQLite::bind(row, name, value);
        row.exec();
    });
}

} // namespace deskphone
