// SPDX-License-Identifier: MIT
// Checks the Windows registry from inside: what is stored, to the byte, and what is read. It
// replaces the tools of the machine, so it asks for a word of consent. With other words it reads
// ("get NAME DEFAULT") or writes ("put NAME TEXT") one value.
#include "tools/windows_registry.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <thread>

namespace {

using torvik::Registry;
using torvik::WindowsRegistry;

constexpr const char* keyName = "SOFTWARE\\Baltrum\\Maskor";
int failures = 0;

void expect(const char* name, const std::string& actual, const std::string& expected) {
    if (actual == expected)
        return;
    ++failures;
    std::printf("FAILED: %s: \"%s\" instead of \"%s\"\n", name, actual.c_str(), expected.c_str());
}

// The bytes of a stored text, or "none" where there is no text value of that name.
std::string stored(const char* name) {
    std::string bytes(1000, '\0');
    auto size = static_cast<DWORD>(bytes.size());
    if (RegGetValueA(HKEY_LOCAL_MACHINE, keyName, name, RRF_RT_REG_SZ, nullptr, bytes.data(),
                     &size) != ERROR_SUCCESS)
        return "none";
    return bytes.substr(0, size);
}

bool isStoredWide(const char* name, const std::wstring& text) {
    std::wstring value(1000, L'\0');
    auto size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Baltrum\\Maskor",
                 std::wstring(name, name + std::strlen(name)).c_str(), RRF_RT_REG_SZ, nullptr,
                 value.data(), &size);
    return value.c_str() == text;
}

void removeKey() {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Baltrum");
}

void testValues() {
    WindowsRegistry registry;
    expect("a missing key gives the default", registry.strRegistryValueGet("Tool01", "d"), "d");
    registry.RegistryValuePut("ToolCount", "12");
    expect("the first write makes the key", stored("ToolCount"), std::string("12\0", 3));
    expect("a missing value gives the default", registry.strRegistryValueGet("Tool01", "d"), "d");
    for (const std::string& text : {std::string(), std::string("7|Slot drill|6.000|-2000.000"),
                                    std::string(" a,;\"\\ "), std::string(77, 'x') + "\xC3\xA4"}) {
        registry.RegistryValuePut("Tool01", text);
        expect("a text is stored with its NUL", stored("Tool01"), text + '\0');
        expect("a text is read back", registry.strRegistryValueGet("tool01", "d"), text);
    }
    registry.RegistryValuePut("Tool01", "Fr\xC3\xA4ser \xE2\x82\xAC");
    expect("letters beyond ASCII are stored as such",
           isStoredWide("Tool01", L"Fr\u00E4ser \u20AC") ? "yes" : "no", "yes");
    registry.RegistryValuePut("Tool01", std::string(80, 'x'));
    expect("80 bytes are stored", stored("Tool01"), std::string(80, 'x') + '\0');
    expect("80 bytes are not read", registry.strRegistryValueGet("Tool01", "d"), "d");
    expect("but told whole", registry.wholeText("Tool01").value_or("none"), std::string(80, 'x'));
    expect("a missing value is none", registry.wholeText("Tool02").value_or("none"), "none");
    RegSetKeyValueA(HKEY_LOCAL_MACHINE, keyName, "Tool01", REG_BINARY, "12345", 5);
    expect("a value without a NUL is read whole", registry.strRegistryValueGet("Tool01", ""),
           "12345");
}

// While one batch lives, another program's cannot begin; here another thread stands for it.
void testBatches() {
    WindowsRegistry registry;
    Registry::Batch ours(registry);
    bool open = true;
    std::thread([&open] {
        WindowsRegistry other;
        open = Registry::Batch(other).isOpen();
    }).join();
    expect("a second batch waits in vain", open ? "open" : "closed", "closed");
    registry.RegistryValuePut("A", "1");
    expect("a batch keeps its values back", stored("A"), "none");
    expect("a batch is stored", ours.save() ? stored("A") : "failed", std::string("1\0", 2));
}

// Below a key that the next start forgets, Windows makes no key that lasts.
void testFailedWrite() {
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Baltrum", 0, nullptr, REG_OPTION_VOLATILE,
                    KEY_WRITE, nullptr, &key, nullptr);
    RegCloseKey(key);
    WindowsRegistry registry;
    expect("a write that fails is told", registry.RegistryValuePut("A", "1") ? "yes" : "no", "no");
    expect("it lasts for this run", registry.strRegistryValueGet("A", "0") + stored("A"), "1none");
}

} // namespace

int main(int count, char** words) {
    WindowsRegistry registry;
    const std::string order(count > 1 ? words[1] : "");
    if (order == "get" && count == 4) {
        std::printf("%s", registry.strRegistryValueGet(words[2], words[3]).c_str());
    } else if (order == "put" && count == 4) {
        registry.RegistryValuePut(words[2], words[3]);
    } else if (order == "replace-tools") {
        removeKey();
        testValues();
        testBatches();
        removeKey();
        testFailedWrite();
        removeKey();
    } else {
        std::printf(
            "Usage: windows_registry_test replace-tools | get NAME DEFAULT | put NAME TEXT\n");
        return 2;
    }
    return failures == 0 ? 0 : 1;
}
