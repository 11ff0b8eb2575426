#pragma once

#include "DisplayAPI/Export.h"

#include <memory>
#include <optional>
#include <set>
#include <string>

class Semaphore;
class TranslationInfo;

namespace DisplayAPI {

/// An action that the user can choose on a screen: a label and a type. Plain data: every operation runs on the calling
/// thread, and it is safe to read from any thread while no thread assigns to it. Texts are UTF-8.
///
/// Ownership: the application owns commands; a command owns its translation. Copies share the translation and both
/// delete it: do not copy commands that have one.
class DISPLAYAPI_EXPORT Command {
public:
    /// What the command is for; any value travels through. Not all values have names.
    enum Type : int { BACK = 1, OK = 6, ITEM = 7, RIGHT = 9, SAVE = 11, TABBACK = 18, TABFWD = 19 };

    /// A null label is an empty text.
    Command(TranslationInfo* label, Type type);
    Command(const std::string& text, Type type);
    Command(const Command& other);
    Command& operator=(const Command& other);

    /// Recalls every queued notification of this command. One that is being delivered meanwhile still arrives.
    virtual ~Command();

    Type getType() const { return mType; }
    TranslationInfo* getTranslationInfo() const { return mTranslation; }

    /// The label: with a translation its complete string, on variant 1 its string; else the plain text. The translator
    /// runs under the list lock and must not call the library.
    std::string getText() const;

    /// The label without the list lock and the same on every variant.
    std::string getBasicText() const;

    void setUseAlternativeDisplay(bool on) { mUseAlternativeDisplay = on; }
    bool useAlternativeDisplay() const { return mUseAlternativeDisplay; }

    /// The lock of the set of live commands and of label reads; made on first use, not the caller's. Its holder may
    /// take it again.
    static Semaphore* commandListMutex();

    /// Adds to and takes out of the set of live commands, which constructors and destructor do. The lock itself goes
    /// when the set becomes empty.
    static void addCommand(Command* command);
    static void removeCommand(Command* command);

    /// Whether the pointer still designates a live command; it is not read.
    static bool exists(Command* command);

    /// The label of a command that another thread may delete; nothing where it does not exist.
    static std::optional<std::string> textOf(Command* command);

private:
    class ListLock;

    static std::shared_ptr<Semaphore> listLock();

    std::string mText;
    Type mType;
    bool mUseAlternativeDisplay = false;
    TranslationInfo* mTranslation = nullptr;
    [[maybe_unused]] unsigned int mWord = 0;

    static std::set<Command*>& gAllCommands;
    static Semaphore* gCommandListMutex;
};

} // namespace DisplayAPI
