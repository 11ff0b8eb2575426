#include "DisplayAPI/TextBox.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/TextBoxPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/form/TextBoxPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CLEANUP = 1,
    GET_TEXT = 2,
    SET_TEXT = 3,
    SET_TEXT_TRANSLATED = 4,
    GET_SIZE = 5,
    SET_MAX_SIZE = 6,
    GET_MAX_SIZE = 7,
    CLEAR = 8,
    HIDE = 9,
    SET_TITLE = 10,
    SET_TITLE_TRANSLATED = 11
};

using Ifc = TextBoxPrivateIfc;

} // namespace

struct TextBox::Ops
    : Operations<Waits<CREATE, &TextBox::create>, Waits<CLEANUP, &TextBox::destroy>, Waits<GET_TEXT, &Ifc::getText>,
                 Waits<SET_TEXT, taking<const std::string&, bool>(&Ifc::setText)>,
                 Waits<SET_TEXT_TRANSLATED, taking<TranslationInfo*>(&Ifc::setText)>,
                 Waits<GET_SIZE, &Ifc::getSize, -1>, Waits<SET_MAX_SIZE, &Ifc::setMaxSize>,
                 Waits<GET_MAX_SIZE, &Ifc::getMaxSize, -1>, Waits<CLEAR, &Ifc::clear>, Waits<HIDE, &Ifc::hide>,
                 Waits<SET_TITLE, taking<const std::string&>(&Ifc::setTitle)>,
                 Waits<SET_TITLE_TRANSLATED, taking<TranslationInfo*>(&Ifc::setTitle)>> {};

TextBox::TextBox(bool twoLine) : mTwoLine(twoLine)
{
    Ops::call<CREATE>(*this, mImplementation);
}

TextBox::TextBox(std::string, std::string) {}

TextBox::TextBox(TextBoxPrivateIfc* implementation) : mImplementation(implementation) {}

TextBox::~TextBox()
{
    cleanup();
}

/// Only the small panel has two kinds. Once: a second side would know nothing of the text.
void TextBox::create()
{
    if (mImplementation != nullptr)
        return;
    name = "TextBox";
    if (isFullPanel())
        mImplementation = new TextBoxPrivate(this);
    else if (mTwoLine)
        mImplementation = new TextBoxPrivate2LineWP1(this);
    else
        mImplementation = new TextBoxPrivateWP1(this);
}

void TextBox::destroy()
{
    deletePrivateSide(mImplementation);
}

void TextBox::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* TextBox::getPrivateImpl()
{
    return mImplementation;
}

Command* TextBox::SELECT_COMMAND()
{
    static Command command("", Command::OK);
    return &command;
}

Command* TextBox::RIGHT_COMMAND()
{
    static Command command("", Command::RIGHT);
    return &command;
}

Command* TextBox::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

std::string TextBox::getText()
{
    return Ops::call<GET_TEXT>(*this, mImplementation);
}

void TextBox::setText(std::string& text, bool cursorAtEnd)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text, cursorAtEnd);
}

void TextBox::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, text);
}

int TextBox::getSize()
{
    return Ops::call<GET_SIZE>(*this, mImplementation);
}

void TextBox::setMaxSize(int characters)
{
    Ops::call<SET_MAX_SIZE>(*this, mImplementation, characters);
}

int TextBox::getMaxSize()
{
    return Ops::call<GET_MAX_SIZE>(*this, mImplementation);
}

void TextBox::clear()
{
    Ops::call<CLEAR>(*this, mImplementation);
}

void TextBox::hide()
{
    Ops::call<HIDE>(*this, mImplementation);
}

void TextBox::setTitle(const std::string& title)
{
    Ops::call<SET_TITLE>(*this, mImplementation, title);
}

void TextBox::setTitle(TranslationInfo* title)
{
    Ops::call<SET_TITLE_TRANSLATED>(*this, mImplementation, title);
}

void TextBox::addCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addCommandListener(listener);
}

void TextBox::removeCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->removeCommandListener(listener);
}

void TextBox::cleanup()
{
    Ops::call<CLEANUP>(*this, mImplementation);
}

void TextBox::insert(std::string&, int) {}

void TextBox::setTextBoxType(TextBoxType) {}

void TextBox::setReadOnlyMode(bool) {}

bool TextBox::getReadOnlyMode() const
{
    return false;
}

void TextBox::setTicker(Ticker*) {}

void TextBox::hideOptionsItem() {}

int getCaretPosition()
{
    return 0;
}

} // namespace DisplayAPI
