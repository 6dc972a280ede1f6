// SPDX-License-Identifier: MIT
#include "tools/windows_registry.h"

#include "base/errors.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace torvik {
namespace {

constexpr const char* ourKey = "SOFTWARE\\Baltrum\\Maskor";
constexpr const char* mutexName = "Global\\Baltrum Maskor settings";
constexpr DWORD longestWait = 2000; // milliseconds

// A mutex that every user of the machine may wait for.
HANDLE openMutex() {
    SECURITY_DESCRIPTOR forAll{};
    InitializeSecurityDescriptor(&forAll, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&forAll, TRUE, nullptr, FALSE);
    SECURITY_ATTRIBUTES rights{sizeof(SECURITY_ATTRIBUTES), &forAll, FALSE};
    return CreateMutexA(&rights, FALSE, mutexName);
}

bool putValue(HKEY key, const std::string& name, const std::string& text) {
    return RegSetValueExA(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>(text.size() + 1)) == ERROR_SUCCESS;
}

} // namespace

WindowsRegistry::~WindowsRegistry() {
    if (m_mutex != nullptr)
        CloseHandle(m_mutex);
}

std::string WindowsRegistry::storedValueGet(std::string_view name,
                                            std::string_view defaultText) const {
    std::array<char, maxValueBytes + 1> buffer;
    buffer.fill(' ');
    auto length = static_cast<DWORD>(buffer.size());

    // Opened anew for each read and left open: Windows closes it when the program ends.
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, ourKey, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
        return std::string(defaultText);
    if (RegQueryValueExA(key, std::string(name).c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer.data()), &length) != ERROR_SUCCESS)
        return std::string(defaultText);

    std::string text(buffer.data(), std::min<std::size_t>(length, buffer.size()));
    if (text.ends_with('\0'))
        text.pop_back();
    return text;
}

std::optional<std::string> WindowsRegistry::storedText(std::string_view name) const {
    const auto query = [&](void* data, DWORD& size) {
        return RegGetValueA(HKEY_LOCAL_MACHINE, ourKey, std::string(name).c_str(), RRF_RT_ANY,
                            nullptr, data, &size);
    };
    DWORD size = 0;
    LSTATUS status = query(nullptr, size);
    std::string text(size, '\0');
    if (status == ERROR_SUCCESS)
        status = query(text.data(), size);
    if (status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND)
        return std::nullopt;
    if (status != ERROR_SUCCESS)
        throw FileError(std::string("HKEY_LOCAL_MACHINE\\") + ourKey,
                        "the registry cannot be read (error " + std::to_string(status) + ")");
    text.resize(std::min<std::size_t>(size, text.size()));
    while (text.ends_with('\0'))
        text.pop_back();
    return text;
}

bool WindowsRegistry::store(const Values& values) {
    HKEY software = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE", 0, KEY_WRITE, &software) != ERROR_SUCCESS)
        return false;
    HKEY key = nullptr;
    bool stored = RegCreateKeyExA(software, "Baltrum\\Maskor", 0, nullptr, REG_OPTION_NON_VOLATILE,
                                  KEY_WRITE, nullptr, &key, nullptr) == ERROR_SUCCESS;
    if (stored) {
        for (const auto& [name, text] : values)
            stored = putValue(key, name, text) && stored;
        RegCloseKey(key);
    }
    RegCloseKey(software);
    return stored;
}

bool WindowsRegistry::lock() {
    if (m_mutex == nullptr)
        m_mutex = openMutex();
    if (m_mutex == nullptr) // where none can be had the others have none, too
        return true;
    const DWORD waited = WaitForSingleObject(m_mutex, longestWait);
    m_locked = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
    return m_locked;
}

void WindowsRegistry::unlock() {
    if (m_locked)
        ReleaseMutex(m_mutex);
    m_locked = false;
}

} // namespace torvik
