#include "platform/jet/properties.h"

#include "platform/jet/sql_name.h"
#include "platform/jet/storage.h"

#include <array>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

namespace jet {

namespace {

// The files lie open on a share for everyone who has their password; the hash only has to keep it from being read
// there, and it is worked out at every opening of every file.
constexpr int hashRounds = 1000;
constexpr std::size_t saltSize = 16;
constexpr std::size_t hashSize = 32;

const PropertyName passwordProperty{"", "", "Password"};

std::string propertiesIn(std::string_view schema) { return quoted(schema) + "." + quoted(propertiesTable); }

std::string hexText(std::span<const unsigned char> bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    for (const unsigned char byte : bytes) {
        result += digits[byte >> 4U];
        result += digits[byte & 15U];
    }
    return result;
}

std::string passwordHash(std::string_view password, const std::string& salt) {
    std::array<unsigned char, hashSize> hash{};
    const int done = PKCS5_PBKDF2_HMAC(
        password.data(), static_cast<int>(password.size()), reinterpret_cast<const unsigned char*>(salt.data()),
        static_cast<int>(salt.size()), hashRounds, EVP_sha256(), static_cast<int>(hash.size()), hash.data());
    if (done != 1) raise(ErrorNumber::Internal, "Kennwortprüfung.");
    return hexText(hash);
}

std::string newSalt() {
    std::array<unsigned char, saltSize> salt{};
    if (RAND_bytes(salt.data(), static_cast<int>(salt.size())) != 1) raise(ErrorNumber::Internal, "Zufallszahlen.");
    return hexText(salt);
}

} // namespace

std::optional<std::string> readProperty(sqlite3* storage, std::string_view schema, const PropertyName& name) {
    const std::array texts{name.table, name.field, name.name};
    return queryText(
        storage, "SELECT Value FROM " + propertiesIn(schema) + " WHERE TableName = ?1 AND FieldName = ?2 AND Name = ?3",
        texts);
}

void writeProperty(sqlite3* storage, std::string_view schema, const PropertyName& name, const std::string& value) {
    const std::array texts{name.table, name.field, name.name, value};
    run(storage,
        "INSERT OR REPLACE INTO " + propertiesIn(schema) +
            " (TableName, FieldName, Name, Value) VALUES (?1, ?2, ?3, ?4)",
        texts);
}

void dropProperty(sqlite3* storage, std::string_view schema, const PropertyName& name) {
    const std::array texts{name.table, name.field, name.name};
    run(storage, "DELETE FROM " + propertiesIn(schema) + " WHERE TableName = ?1 AND FieldName = ?2 AND Name = ?3",
        texts);
}

void dropTableProperties(sqlite3* storage, std::string_view schema, const std::string& table) {
    run(storage, "DELETE FROM " + propertiesIn(schema) + " WHERE TableName = ?1", std::array{table});
}

void storePassword(sqlite3* storage, std::string_view schema, std::string_view password) {
    if (password.empty()) return dropProperty(storage, schema, passwordProperty);
    const std::string salt = newSalt();
    writeProperty(storage, schema, passwordProperty, salt + ":" + passwordHash(password, salt));
}

bool passwordFits(sqlite3* storage, std::string_view schema, std::string_view password) {
    const auto stored = readProperty(storage, schema, passwordProperty);
    if (!stored) return true;
    const auto colon = stored->find(':');
    if (colon == std::string::npos) return false;
    const std::string given = passwordHash(password, stored->substr(0, colon));
    const std::string_view kept = std::string_view(*stored).substr(colon + 1);
    return given.size() == kept.size() && CRYPTO_memcmp(given.data(), kept.data(), kept.size()) == 0;
}

} // namespace jet
