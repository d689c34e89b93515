// The flat binary form that all data files share: fields one after another, little-endian, without
// padding. Reader and writer work on bytes in memory.
#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

// How the load of a table or of one of its records ended.
enum class TableLoad {
    Loaded,
    NoFile,         // known not to be there
    Invalid,        // not to be read, of another form, or damaged
    UnknownVersion, // of a newer program
};

// A read past the end, or a count that is more than what is left, sets the failure for good; from
// then on every read gives 0 or an empty text. Nothing is allocated for what is not there.
// The bytes must outlive the reader.
class RecordReader {
public:
    explicit RecordReader(std::string_view bytes) : Bytes(bytes) {}

    bool Failed() const { return HasFailed; }
    TableLoad Result() const { return HasFailed ? TableLoad::Invalid : TableLoad::Loaded; }
    std::size_t Left() const { return HasFailed ? 0 : Bytes.size() - Offset; }
    // Counted from 1, as positions in a file are here.
    std::int64_t Position() const { return static_cast<std::int64_t>(Offset) + 1; }

    // The next size bytes, to be compared with a literal; empty on failure.
    std::string_view Get_Header(std::size_t size);
    // The name of the form and, where it has one, its version.
    TableLoad Get_Start(std::string_view header, std::string_view version = {});
    // The count of entries that have at least so many bytes each; 0 and a failure when so many
    // cannot be there.
    std::size_t Get_Count(std::size_t entryBytes);
    // The same, stored as the index of the last entry, -1 for none.
    std::size_t Get_CountOfLast(std::size_t entryBytes);
    std::uint8_t Get_Byte();
    bool Get_Boolean(); // any value but 0 is true
    std::int16_t Get_Integer();
    std::int32_t Get_Long();
    double Get_Date(); // days since 1899-12-30
    QString Get_LenString();
    QString Get_RecString();
    // For fields that say the same in many records, which then share one text in memory.
    QString Get_SharedLenString();
    QString Get_SharedRecString();
    void Get_ByteArray(std::span<std::uint8_t> target);
    // Does not move the reading position.
    std::int32_t Get_LongAt(std::int64_t position);

private:
    const char* Take(std::size_t size);
    template <class T>
    T Get_Number();
    std::size_t Check_Count(std::int64_t count, std::size_t entryBytes);
    std::string_view Take_Text(std::int64_t count);
    QString Get_SharedText(std::int64_t count);

    struct SharedText {
        std::string_view Bytes;
        QString Text;
    };

    std::string_view Bytes;
    std::size_t Offset = 0;
    bool HasFailed = false;
    std::array<SharedText, 64> Shared;
};

// Collects the bytes of a file. Nothing is ever cut: a text that is too long for its count sets the
// failure, and the file must not be written then.
class RecordWriter {
public:
    bool Failed() const { return HasFailed; }
    std::int64_t Position() const { return static_cast<std::int64_t>(Content.size()) + 1; }
    const std::string& Bytes() const { return Content; }
    // Without a copy; the writer has none afterwards.
    std::string Take_Bytes() { return std::move(Content); }
    void Reserve(std::size_t bytes) { Content.reserve(bytes); }

    void Put_Header(std::string_view literal) { Content += literal; }
    void Put_Byte(std::uint8_t value) { Content += static_cast<char>(value); }
    void Put_Boolean(bool value) { Put_Integer(value ? -1 : 0); }
    void Put_Integer(std::int16_t value);
    void Put_Long(std::int32_t value);
    void Put_Date(double value);
    void Put_LenString(const QString& text);
    void Put_RecString(const QString& text);
    void Put_ByteArray(std::span<const std::uint8_t> bytes);
    // position of a Long already written, counted from 1.
    void Put_LongAt(std::int64_t position, std::int32_t value);

private:
    std::string Content;
    bool HasFailed = false;
};
