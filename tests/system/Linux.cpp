#include "tests/system/System.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <utility>

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

StartedProgram::StartedProgram(const fs::path &program, const std::vector<std::string> &arguments,
                               const fs::path &folder) {
    std::vector<std::string> texts{program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char *> words;
    for (std::string &text : texts) {
        words.push_back(text.data());
    }
    words.push_back(nullptr);
    process_ = fork();
    if (process_ < 0) {
        throw std::runtime_error("No further program can be started");
    }
    if (process_ == 0) {
        if (chdir(folder.c_str()) == 0) {
            execv(program.c_str(), words.data());
        }
        _exit(EXIT_FAILURE);
    }
}

StartedProgram::~StartedProgram() {
    if (process_ != 0) {
        Kill();
    }
}

int StartedProgram::Wait() {
    int status = EXIT_FAILURE;
    waitpid(static_cast<pid_t>(std::exchange(process_, 0)), &status, 0);
    return status;
}

bool StartedProgram::Kill() {
    kill(static_cast<pid_t>(process_), SIGKILL);
    return WIFSIGNALED(Wait());
}

} // namespace kelvaro
