#include "host/languages/CompiledTexts.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace host {

namespace {

constexpr std::uint32_t MAGIC = 0x950412DE;
constexpr std::uint32_t NEWEST_REVISION = 1;

// Where the header says what is where. A table has a length and an offset for each of its strings.
constexpr std::size_t REVISION = 4;
constexpr std::size_t COUNT = 8;
constexpr std::size_t KEY_TABLE = 12;
constexpr std::size_t TEXT_TABLE = 16;
constexpr std::size_t ENTRY = 8;

static_assert(std::endian::native == std::endian::little, "catalogues are compiled with msgfmt --endianness=little");
static_assert(sizeof(std::size_t) > sizeof(std::uint32_t), "sums of offsets do not overflow");

std::optional<std::uint32_t> wordAt(std::string_view bytes, std::size_t offset)
{
    std::uint32_t word = 0;
    if (offset + sizeof word > bytes.size())
        return {};
    std::memcpy(&word, bytes.data() + offset, sizeof word);
    return word;
}

/// Ends at its first null: behind it are the other forms of a plural. Takes its length off `room`: strings that lie in
/// each other would be more, all together, than the file they come from.
std::optional<std::string> stringAt(std::string_view bytes, std::size_t entry, std::size_t& room)
{
    const auto length = wordAt(bytes, entry);
    const auto offset = wordAt(bytes, entry + sizeof(std::uint32_t));
    if (!length || !offset || std::size_t{*offset} + *length >= bytes.size() || bytes[*offset + *length] != '\0' ||
        *length > room)
        return {};
    room -= *length;
    return bytes.data() + *offset;
}

} // namespace

std::optional<Texts> readCompiledTexts(std::string_view bytes)
{
    if (bytes.empty()) // what msgfmt makes of a source without texts
        return Texts();
    const auto revision = wordAt(bytes, REVISION);
    const auto count = wordAt(bytes, COUNT);
    const auto keys = wordAt(bytes, KEY_TABLE);
    const auto translations = wordAt(bytes, TEXT_TABLE);
    if (wordAt(bytes, 0) != MAGIC || !translations || *revision >> 16 > NEWEST_REVISION)
        return {};
    Texts texts;
    std::size_t room = bytes.size();
    for (std::size_t i = 0; i < *count; ++i) {
        auto key = stringAt(bytes, *keys + i * ENTRY, room);
        auto text = stringAt(bytes, *translations + i * ENTRY, room);
        if (!key || !text)
            return {};
        texts.emplace(std::move(*key), std::move(*text));
    }
    return texts;
}

} // namespace host
