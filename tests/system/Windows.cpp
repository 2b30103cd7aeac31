#include "tests/system/System.h"

#include <aclapi.h>
#include <windows.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace kelvaro {

namespace fs = std::filesystem;

namespace {

/// Gives all users rights in a folder or denies them, in place of what was said before.
void SayOfAllUsers(ACCESS_MODE mode, DWORD rights, const fs::path &folder) {
    SID_IDENTIFIER_AUTHORITY authority = SECURITY_WORLD_SID_AUTHORITY;
    PSID everyone = nullptr;
    if (AllocateAndInitializeSid(&authority, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &everyone) == 0) {
        throw fs::filesystem_error("no name for all users", folder,
                                   {static_cast<int>(GetLastError()), std::system_category()});
    }
    EXPLICIT_ACCESSW access{};
    access.grfAccessPermissions = rights;
    access.grfAccessMode = mode;
    access.grfInheritance = mode == DENY_ACCESS ? NO_INHERITANCE : SUB_CONTAINERS_AND_OBJECTS_INHERIT;
    access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
    access.Trustee.ptstrName = static_cast<LPWSTR>(everyone);
    PACL list = nullptr;
    std::wstring name = folder.wstring();
    DWORD fault = SetEntriesInAclW(1, &access, nullptr, &list);
    if (fault == ERROR_SUCCESS) {
        fault = SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                      nullptr, list, nullptr);
    }
    LocalFree(list);
    FreeSid(everyone);
    if (fault != ERROR_SUCCESS) {
        throw fs::filesystem_error("rights cannot be given", folder,
                                   {static_cast<int>(fault), std::system_category()});
    }
}

} // namespace

OrdinaryUser::OrdinaryUser() = default;
OrdinaryUser::~OrdinaryUser() = default;

bool HoldsWriteProtection() {
    const fs::path folder = fs::temp_directory_path() / ("kelvaro-" + std::to_string(GetCurrentProcessId()));
    fs::create_directory(folder);
    ProtectFolder(folder);
    const bool isProtected = !std::ofstream(folder / "probe").is_open();
    OpenFolder(folder);
    fs::remove_all(folder);
    return isProtected;
}

void ProtectFolder(const fs::path &folder) {
    SayOfAllUsers(DENY_ACCESS, FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY, folder);
}

void OpenFolder(const fs::path &folder) {
    SayOfAllUsers(GRANT_ACCESS, FILE_ALL_ACCESS, folder);
}

fs::path QuickFolder() {
    return fs::temp_directory_path();
}

int Run(const std::string &program, const std::string &options, const Streams &streams) {
    // The shell takes the first and the last quote of its whole argument away.
    std::wstring command = L"\"\"" + fs::path(program).make_preferred().wstring() + L"\" ";
    command += std::wstring(options.begin(), options.end());
    command += L" < \"" + streams.in.wstring() + L"\" > \"" + streams.out.wstring() + L"\"";
    if (!streams.err.empty()) {
        command += L" 2> \"" + streams.err.wstring() + L"\"";
    }
    return _wsystem((command + L"\"").c_str());
}

bool TakesFoldersAsInput() {
    return false;
}

StartedProgram::StartedProgram(const fs::path &program, const std::vector<std::string> &arguments,
                               const fs::path &folder) {
    const fs::path file = fs::absolute(program);
    std::wstring command = L"\"" + file.wstring() + L"\"";
    for (const std::string &argument : arguments) {
        command.append(L" ").append(argument.begin(), argument.end());
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(file.c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(),
                       &start, &started) == 0) {
        throw fs::filesystem_error("a program cannot be started", file,
                                   {static_cast<int>(GetLastError()), std::system_category()});
    }
    CloseHandle(started.hThread);
    process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
}

StartedProgram::~StartedProgram() {
    if (process_ != 0) {
        Kill();
    }
}

int StartedProgram::Wait() {
    const auto process = reinterpret_cast<HANDLE>(std::exchange(process_, 0));
    DWORD status = EXIT_FAILURE;
    WaitForSingleObject(process, INFINITE);
    GetExitCodeProcess(process, &status);
    CloseHandle(process);
    return static_cast<int>(status);
}

bool StartedProgram::Kill() {
    constexpr UINT killed = 1000;
    TerminateProcess(reinterpret_cast<HANDLE>(process_), killed);
    return Wait() == static_cast<int>(killed);
}

} // namespace kelvaro
