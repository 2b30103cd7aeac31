#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace kelvaro {

// What tests ask of a system, and what every system does in its own way: one source file a system.

/// Takes the rights of the super-user away while it lives, as they pass over write protection. Does nothing
/// on a system where they do not.
class OrdinaryUser {
public:
    OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
    ~OrdinaryUser();

private:
    bool wasRoot_ = false;
};

/// Whether write protection holds for an `OrdinaryUser`. A system that plays another one lets its own
/// super-user pass.
bool HoldsWriteProtection();
/// Lets an ordinary user make no more files in a folder, and lets all users make files in it again.
void ProtectFolder(const std::filesystem::path &folder);
void OpenFolder(const std::filesystem::path &folder);

/// The folder in memory where the machine has one, for tests that write many files.
std::filesystem::path QuickFolder();

/// Whether a program can be given a folder for its standard input.
bool TakesFoldersAsInput();

/// Files for the standard streams of a program. Without a name for it the error stream is that of the test.
struct Streams {
    std::filesystem::path in, out, err;
};

/// Runs a program to its end; its exit status, 0 where all went well. One that hangs is ended after two
/// minutes where the system has a means for it.
int Run(const std::string &program, const std::string &options, const Streams &streams);

/// A program at work in a folder. What still runs is ended with the object.
class StartedProgram {
public:
    StartedProgram(const std::filesystem::path &program, const std::vector<std::string> &arguments,
                   const std::filesystem::path &folder);
    StartedProgram(const StartedProgram &) = delete;
    StartedProgram &operator=(const StartedProgram &) = delete;
    ~StartedProgram();

    /// Waits for its end; its exit status, 0 where all went well.
    int Wait();
    /// Ends it in the midst of what it does; whether it was still running.
    bool Kill();

private:
    std::intptr_t process_ = 0; ///< 0 when it has ended
};

} // namespace kelvaro
