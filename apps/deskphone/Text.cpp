#include "apps/deskphone/Text.h"

#include <utility>

namespace deskphone {

namespace {

void replace(std::string& text, const std::string& mark, const Text::Argument& argument)
{
    if (const std::size_t at = text.find(mark); at != std::string::npos)
        text.replace(at, mark.size(), argument());
}

} // namespace

Text::Text(TranslatorIfc* translator, const std::string& key, std::vector<Argument> arguments)
    : mTranslator(translator), mArguments(std::move(arguments)), mInfo(key, this)
{
}

std::string Text::translate(const std::string& key)
{
    std::string text = mTranslator != nullptr ? mTranslator->translate(key) : key;
    for (std::size_t i = 0; i < mArguments.size(); ++i)
        replace(text, "%" + std::to_string(i + 1), mArguments[i]);
    return text;
}

} // namespace deskphone
