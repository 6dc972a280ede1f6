// SPDX-License-Identifier: MIT
#include "answers/digest.h"

#include "base/errors.h"
#include "base/files.h"

#include <array>
#include <fstream>
#include <string_view>
#include <vector>

#ifdef _WIN32
#include <windows.h>

#include <bcrypt.h>
#else
#include <sys/types.h>

#include <md5.h>
#endif

namespace torvik {
namespace {

using Digest = std::array<unsigned char, 16>;

#ifdef _WIN32

// The system's own implementation.
class Md5 {
public:
    Md5() {
        BCryptOpenAlgorithmProvider(&m_algorithm, BCRYPT_MD5_ALGORITHM, nullptr, 0);
        BCryptCreateHash(m_algorithm, &m_hash, nullptr, 0, nullptr, 0, 0);
    }
    ~Md5() {
        BCryptDestroyHash(m_hash);
        BCryptCloseAlgorithmProvider(m_algorithm, 0);
    }
    Md5(const Md5&) = delete;
    Md5& operator=(const Md5&) = delete;

    void add(std::vector<char>& bytes, std::size_t size) {
        BCryptHashData(m_hash, reinterpret_cast<PUCHAR>(bytes.data()), static_cast<ULONG>(size), 0);
    }
    Digest finish() {
        Digest digest{};
        BCryptFinishHash(m_hash, digest.data(), static_cast<ULONG>(digest.size()), 0);
        return digest;
    }

private:
    BCRYPT_ALG_HANDLE m_algorithm = nullptr;
    BCRYPT_HASH_HANDLE m_hash = nullptr;
};

#else

class Md5 {
public:
    Md5() { MD5Init(&m_context); }

    void add(const std::vector<char>& bytes, std::size_t size) {
        MD5Update(&m_context, reinterpret_cast<const unsigned char*>(bytes.data()), size);
    }
    Digest finish() {
        Digest digest{};
        MD5Final(digest.data(), &m_context);
        return digest;
    }

private:
    MD5_CTX m_context{};
};

#endif

std::string hexadecimal(const Digest& digest) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : digest) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

} // namespace

std::string strDigestFile(const std::filesystem::path& path) {
    requireReadable(path);
    std::ifstream file;
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(path, std::ios::binary);
    Md5 digest;
    std::vector<char> block(std::size_t{1} << 16);
    while (file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        digest.add(block, static_cast<std::size_t>(file.gcount()));
    }
    if (file.bad())
        throw FileError(utf8FromPath(path), "the file cannot be read to its end");
    return hexadecimal(digest.finish());
}

} // namespace torvik
