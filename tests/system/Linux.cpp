#include "tests/system/System.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace kelvaro {

namespace fs = std::filesystem;

OrdinaryUser::OrdinaryUser() : wasRoot_(geteuid() == 0) {
    constexpr uid_t nobody = 65534;
    if (wasRoot_ && seteuid(nobody) != 0) {
        throw std::runtime_error("The rights of the super-user cannot be laid down");
    }
}

OrdinaryUser::~OrdinaryUser() {
    if (wasRoot_ && seteuid(0) != 0) {
        std::abort();
    }
}

bool HoldsWriteProtection() {
    return true;
}

void ProtectFolder(const fs::path &folder) {
    fs::permissions(folder, fs::perms(0555));
}

void OpenFolder(const fs::path &folder) {
    fs::permissions(folder, fs::perms::all);
}

fs::path QuickFolder() {
    const fs::path memory = "/dev/shm";
    return fs::exists(memory) ? memory : fs::temp_directory_path();
}

int Run(const std::string &program, const std::string &options, const Streams &streams) {
    std::string command = "timeout 120 '" + program + "' " + options;
    command += " < '" + streams.in.string() + "' > '" + streams.out.string() + "'";
    if (!streams.err.empty()) {
        command += " 2> '" + streams.err.string() + "'";
    }
    return std::system(command.c_str());
}

bool TakesFoldersAsInput() {
    return true;
}

} // namespace kelvaro
