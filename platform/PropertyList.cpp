// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "PropertyList.h"

#include "PropertyListShape.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryFile>

#include <plist/plist.h>

#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <system_error>
#include <type_traits>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

/**
 * libplist reads and writes reals by the locale's decimal point. While one of these lives, this
 * thread's is the point.
 */
class DecimalPoint {
public:
    DecimalPoint()
        : mBefore(uselocale(plain()))
    {
    }
    ~DecimalPoint() { uselocale(mBefore); }
    DecimalPoint(const DecimalPoint&) = delete;
    DecimalPoint& operator=(const DecimalPoint&) = delete;
    DecimalPoint(DecimalPoint&&) = delete;
    DecimalPoint& operator=(DecimalPoint&&) = delete;

private:
    static locale_t plain()
    {
        struct Free {
            void operator()(locale_t locale) const { freelocale(locale); }
        };
        static const std::unique_ptr<std::remove_pointer_t<locale_t>, Free> locale(
            newlocale(LC_ALL_MASK, "C", nullptr));
        return locale.get();
    }

    locale_t mBefore;
};

struct FreeXml {
    void operator()(char* xml) const { plist_to_xml_free(xml); }
};

std::string systemText(int error)
{
    return std::system_category().message(error);
}

std::string doing(const char* what, const std::string& path, const std::string& why)
{
    return std::string(what) + " " + path + ": " + why;
}

/** Closes a descriptor at the end of the scope. */
class Descriptor {
public:
    explicit Descriptor(int fd)
        : mFd(fd)
    {
    }
    ~Descriptor()
    {
        if (mFd >= 0) {
            ::close(mFd);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int get() const { return mFd; }

private:
    int mFd;
};

/** Reads a regular file whole, without ever waiting for another process. */
std::optional<std::string> readFile(const std::string& path, PropertyListError& error)
{
    const auto fail = [&](const std::string& why) {
        error.message = doing("cannot read", path, why);
        return std::nullopt;
    };
    // O_NONBLOCK: opening a FIFO would otherwise wait for a writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (file.get() < 0) {
        error.missing = errno == ENOENT;
        return fail(systemText(errno));
    }
    struct stat status { };
    if (::fstat(file.get(), &status) != 0) {
        return fail(systemText(errno));
    }
    if (!S_ISREG(status.st_mode)) {
        return fail("it is no regular file");
    }
    // One byte more than the file is said to have shows that it has grown meanwhile.
    const auto size = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    std::string bytes(std::min(size, kPropertyListMaxSize) + 1, '\0');
    std::size_t used = 0;
    for (;;) {
        const ssize_t got = ::read(file.get(), bytes.data() + used, bytes.size() - used);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return fail(systemText(errno));
        }
        used += static_cast<std::size_t>(got);
        if (used > kPropertyListMaxSize || size > kPropertyListMaxSize) {
            return fail("it is larger than " + std::to_string(kPropertyListMaxSize) + " bytes");
        }
        if (got == 0) {
            bytes.resize(used);
            return bytes;
        }
        if (used == bytes.size()) {
            bytes.resize(std::min(2 * used, kPropertyListMaxSize + 1));
        }
    }
}

/** Writes all bytes and has them on the disk before it returns. */
std::string writeThrough(QFileDevice& file, const std::string& bytes)
{
    // The last bytes that fit are written without an error; the next ones tell why no more do.
    for (std::size_t done = 0; done < bytes.size();) {
        const qint64 written =
            file.write(bytes.data() + done, static_cast<qint64>(bytes.size() - done));
        if (written <= 0) {
            return file.errorString().toStdString();
        }
        done += static_cast<std::size_t>(written);
    }
    if (!file.flush()) {
        return file.errorString().toStdString();
    }
    // Some file systems tell of a full disk only here.
    return ::fsync(file.handle()) == 0 ? std::string() : systemText(errno);
}

} // namespace

// Number ------------------------------------------------------------------------------------------

std::int16_t Number::shortValue() const
{
    return static_cast<std::int16_t>(longValue());
}

std::int64_t Number::longValue() const
{
    if (!mIsReal) {
        return static_cast<std::int64_t>(mBits);
    }
    constexpr double kEnd = 0x1p63;
    if (std::isnan(mReal)) {
        return 0;
    }
    if (mReal >= kEnd) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (mReal < -kEnd) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(mReal);
}

bool Number::boolValue() const
{
    return mIsReal ? mReal != 0.0 : mBits != 0;
}

bool Number::isWhole() const
{
    return !mIsReal || static_cast<double>(longValue()) == mReal;
}

// Dictionary --------------------------------------------------------------------------------------

namespace {

plist_t find(void* dictionary, const char* key)
{
    return dictionary == nullptr ? nullptr : plist_dict_get_item(dictionary, key);
}

} // namespace

EntryKind Dictionary::kind(const char* key) const
{
    void* const node = find(mNode, key);
    if (node == nullptr) {
        return EntryKind::Absent;
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
    case PLIST_UINT:
    case PLIST_REAL:
        return EntryKind::Number;
    case PLIST_STRING:
        return EntryKind::String;
    case PLIST_DICT:
        return EntryKind::Dictionary;
    case PLIST_ARRAY:
        return EntryKind::Array;
    case PLIST_DATE:
        return EntryKind::Date;
    case PLIST_DATA:
        return EntryKind::Data;
    case PLIST_UID:
        return EntryKind::Uid;
    case PLIST_KEY:
    case PLIST_NONE:
        break;
    }
    return EntryKind::Absent;
}

std::optional<Number> Dictionary::number(const char* key) const
{
    void* const node = find(mNode, key);
    if (node == nullptr) {
        return std::nullopt;
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return Number::integer(value != 0 ? 1 : 0);
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return Number::integer(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return Number::real(value);
    }
    default:
        return std::nullopt;
    }
}

std::optional<std::string_view> Dictionary::string(const char* key) const
{
    void* const node = find(mNode, key);
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING) {
        return std::nullopt;
    }
    std::uint64_t length = 0;
    const char* const text = plist_get_string_ptr(node, &length);
    return text == nullptr ? std::string_view() : std::string_view(text, length);
}

Dictionary Dictionary::dictionary(const char* key) const
{
    void* const node = find(mNode, key);
    const bool isOne = node != nullptr && plist_get_node_type(node) == PLIST_DICT;
    return Dictionary(isOne ? node : nullptr);
}

std::vector<std::string> Dictionary::keys() const
{
    std::vector<std::string> keys;
    if (mNode == nullptr) {
        return keys;
    }
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(mNode, &iterator);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(mNode, iterator, &key, &value);
        if (key == nullptr) {
            break;
        }
        keys.emplace_back(key);
        std::free(key); // NOLINT(*-no-malloc): libplist hands out malloc's memory
    }
    std::free(iterator); // NOLINT(*-no-malloc): as above
    return keys;
}

void Dictionary::setInteger(const char* key, std::int64_t value)
{
    if (mNode != nullptr) {
        // libplist keeps a negative number in its unsigned type and writes it with its sign.
        plist_dict_set_item(mNode, key, plist_new_uint(static_cast<std::uint64_t>(value)));
    }
}

void Dictionary::setBoolean(const char* key, bool value)
{
    if (mNode != nullptr) {
        plist_dict_set_item(mNode, key, plist_new_bool(value ? 1 : 0));
    }
}

void Dictionary::setString(const char* key, const std::string& value)
{
    if (mNode != nullptr) {
        plist_dict_set_item(mNode, key, plist_new_string(value.c_str()));
    }
}

Dictionary Dictionary::addDictionary(const char* key)
{
    if (mNode == nullptr) {
        return {};
    }
    plist_t node = plist_new_dict();
    plist_dict_set_item(mNode, key, node);
    return Dictionary(node);
}

// PropertyList ------------------------------------------------------------------------------------

void PropertyList::Free::operator()(void* node) const
{
    plist_free(node);
}

PropertyList::PropertyList()
    : mRoot(plist_new_dict())
{
}

PropertyList::PropertyList(Node root)
    : mRoot(std::move(root))
{
}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes, PropertyListError& error)
{
    if (bytes.size() > kPropertyListMaxSize) {
        error.message = "it is larger than " + std::to_string(kPropertyListMaxSize) + " bytes";
        return std::nullopt;
    }
    error.message = propertyListShapeError(bytes);
    if (!error.message.empty()) {
        return std::nullopt;
    }
    const DecimalPoint decimalPoint;
    plist_t node = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &node);
    Node root(node);
    if (root == nullptr) {
        error.message = "it is no property list";
        return std::nullopt;
    }
    if (plist_get_node_type(root.get()) != PLIST_DICT) {
        error.message = "its root is no dictionary";
        return std::nullopt;
    }
    PropertyList list(std::move(root));
    // The binary form can say what XML cannot, as a key twice. So it is read as it would be
    // written, and no save can change it.
    return plist_is_binary(bytes.data(), static_cast<std::uint32_t>(bytes.size())) != 0
        ? parse(list.toXml(), error)
        : std::optional(std::move(list));
}

std::optional<PropertyList> PropertyList::load(const std::string& path, PropertyListError& error)
{
    const std::optional<std::string> bytes = readFile(path, error);
    if (!bytes) {
        return std::nullopt;
    }
    std::optional<PropertyList> list = parse(*bytes, error);
    if (!list) {
        error.message = doing("cannot use", path, error.message);
    }
    return list;
}

std::string PropertyList::toXml() const
{
    const DecimalPoint decimalPoint;
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(mRoot.get(), &xml, &length);
    const std::unique_ptr<char, FreeXml> owner(xml);
    return xml == nullptr ? std::string() : std::string(xml, length);
}

bool PropertyList::save(const std::string& path, PropertyListError& error) const
{
    QSaveFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    std::string why;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        why = file.errorString().toStdString();
    } else {
        why = writeThrough(file, toXml());
        if (!why.empty()) {
            file.cancelWriting();
        }
        if (!file.commit() && why.empty()) {
            why = file.errorString().toStdString();
        }
    }
    if (!why.empty()) {
        error.message = doing("cannot write", path, why);
        return false;
    }
    return true;
}

bool PropertyList::saveNew(const std::string& path, PropertyListError& error) const
{
    QTemporaryFile file(
        QFile::decodeName(QByteArray::fromStdString(path)) + QStringLiteral(".XXXXXX"));
    std::string why;
    if (!file.open()) {
        why = file.errorString().toStdString();
    } else {
        why = writeThrough(file, toXml());
        // A link, unlike a rename, never replaces a file that came into being meanwhile.
        if (why.empty()
            && (::fchmod(file.handle(), S_IRUSR | S_IWUSR) != 0
                || ::link(QFile::encodeName(file.fileName()).constData(), path.c_str()) != 0)) {
            why = systemText(errno);
        }
    }
    if (!why.empty()) {
        error.message = doing("cannot create", path, why);
        return false;
    }
    return true;
}

} // namespace platform
