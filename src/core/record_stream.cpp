#include "core/record_stream.h"

#include "platform/record_text.h"

#include <QtEndian>

#include <bit>
#include <cstring>
#include <limits>

namespace {

template <class T>
void Append_Number(std::string& bytes, T value) {
    const T little = qToLittleEndian(value);
    char raw[sizeof little];
    std::memcpy(raw, &little, sizeof little);
    bytes.append(raw, sizeof raw);
}

template <class T>
void Overwrite_Number(std::string& bytes, std::size_t offset, T value) {
    const T little = qToLittleEndian(value);
    std::memcpy(bytes.data() + offset, &little, sizeof little);
}

} // namespace

const char* RecordReader::Take(std::size_t size) {
    if (HasFailed || size > Bytes.size() - Offset) {
        HasFailed = true;
        return nullptr;
    }
    const char* start = Bytes.data() + Offset;
    Offset += size;
    return start;
}

template <class T>
T RecordReader::Get_Number() {
    const char* start = Take(sizeof(T));
    return start == nullptr ? T{} : qFromLittleEndian<T>(start);
}

std::string_view RecordReader::Get_Header(std::size_t size) {
    const char* start = Take(size);
    return start == nullptr ? std::string_view{} : std::string_view{start, size};
}

TableLoad RecordReader::Get_Start(std::string_view header, std::string_view version) {
    if (Get_Header(header.size()) != header) {
        return TableLoad::Invalid;
    }
    const std::string_view found = Get_Header(version.size());
    return HasFailed || found == version ? Result() : TableLoad::UnknownVersion;
}

std::size_t RecordReader::Check_Count(std::int64_t count, std::size_t entryBytes) {
    if (count < 0 || static_cast<std::uint64_t>(count) > Left() / entryBytes) {
        HasFailed = true;
    }
    return HasFailed ? 0 : static_cast<std::size_t>(count);
}

std::size_t RecordReader::Get_Count(std::size_t entryBytes) {
    const std::int32_t count = Get_Long();
    return Check_Count(count, entryBytes);
}

std::size_t RecordReader::Get_CountOfLast(std::size_t entryBytes) {
    const std::int64_t last = Get_Long();
    return Check_Count(last + 1, entryBytes);
}

std::uint8_t RecordReader::Get_Byte() {
    return Get_Number<std::uint8_t>();
}

bool RecordReader::Get_Boolean() {
    return Get_Integer() != 0;
}

std::int16_t RecordReader::Get_Integer() {
    return Get_Number<std::int16_t>();
}

std::int32_t RecordReader::Get_Long() {
    return Get_Number<std::int32_t>();
}

double RecordReader::Get_Date() {
    return std::bit_cast<double>(Get_Number<std::uint64_t>());
}

std::string_view RecordReader::Take_Text(std::int64_t count) {
    if (count < 0)
        HasFailed = true;
    return count <= 0 ? std::string_view{} : Get_Header(static_cast<std::size_t>(count));
}

QString RecordReader::Get_SharedText(std::int64_t count) {
    const std::string_view bytes = Take_Text(count);
    if (bytes.empty())
        return {};
    SharedText& shared = Shared[std::hash<std::string_view>{}(bytes) % Shared.size()];
    if (shared.Bytes != bytes)
        shared = {bytes, Decode_Text(bytes)};
    return shared.Text;
}

QString RecordReader::Get_LenString() {
    return Decode_Text(Take_Text(Get_Long()));
}

QString RecordReader::Get_RecString() {
    return Decode_Text(Take_Text(Get_Number<std::uint16_t>()));
}

QString RecordReader::Get_SharedLenString() {
    return Get_SharedText(Get_Long());
}

QString RecordReader::Get_SharedRecString() {
    return Get_SharedText(Get_Number<std::uint16_t>());
}

void RecordReader::Get_ByteArray(std::span<std::uint8_t> target) {
    if (const char* start = Take(target.size()))
        std::memcpy(target.data(), start, target.size());
}

std::int32_t RecordReader::Get_LongAt(std::int64_t position) {
    const std::size_t size = sizeof(std::int32_t);
    if (HasFailed || position < 1 || Bytes.size() < size ||
        static_cast<std::uint64_t>(position - 1) > Bytes.size() - size) {
        HasFailed = true;
        return 0;
    }
    return qFromLittleEndian<std::int32_t>(Bytes.data() + position - 1);
}

void RecordWriter::Put_Integer(std::int16_t value) {
    Append_Number(Content, value);
}

void RecordWriter::Put_Long(std::int32_t value) {
    Append_Number(Content, value);
}

void RecordWriter::Put_Date(double value) {
    Append_Number(Content, std::bit_cast<std::uint64_t>(value));
}

void RecordWriter::Put_LenString(const QString& text) {
    const std::size_t start = Content.size();
    Put_Long(0);
    Append_EncodedText(Content, text);
    const std::size_t count = Content.size() - start - sizeof(std::int32_t);
    if (count > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        HasFailed = true;
    Overwrite_Number(Content, start, static_cast<std::int32_t>(count));
}

void RecordWriter::Put_RecString(const QString& text) {
    const std::size_t start = Content.size();
    Put_Integer(0);
    Append_EncodedText(Content, text);
    const std::size_t count = Content.size() - start - sizeof(std::uint16_t);
    if (count > MaxRecStringBytes)
        HasFailed = true;
    Overwrite_Number(Content, start, static_cast<std::uint16_t>(count));
}

void RecordWriter::Put_ByteArray(std::span<const std::uint8_t> bytes) {
    Content.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

void RecordWriter::Put_LongAt(std::int64_t position, std::int32_t value) {
    const std::size_t size = sizeof value;
    if (position < 1 || Content.size() < size ||
        static_cast<std::uint64_t>(position - 1) > Content.size() - size) {
        HasFailed = true;
        return;
    }
    Overwrite_Number(Content, static_cast<std::size_t>(position - 1), value);
}
