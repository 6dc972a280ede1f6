// SPDX-License-Identifier: MIT
#include "answers/digest.h"

#include "base/files.h"
#include "job/hpgl_reader.h"

#include <array>
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

    void add(std::string_view bytes) {
        std::vector<unsigned char> copy(bytes.begin(), bytes.end()); // it takes no constant bytes
        BCryptHashData(m_hash, copy.data(), static_cast<ULONG>(copy.size()), 0);
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

    void add(std::string_view bytes) {
        MD5Update(&m_context, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
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

std::string digestOf(std::string_view bytes) {
    Md5 digest;
    digest.add(bytes);
    return hexadecimal(digest.finish());
}

std::string strDigestFile(const std::filesystem::path& path) {
    return digestOf(readWholeFile(path, maxDrawingBytes));
}

} // namespace torvik
