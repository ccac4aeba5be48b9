#include "support/process.h"

#include "support/temp_folder.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

namespace support {

namespace {

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

pid_t spawn(const std::string& program, const std::vector<std::string>& arguments, const TempFolder& folder) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int create = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, folder.file("in").c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, folder.file("out").c_str(), create, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, folder.file("err").c_str(), create, 0600);

    std::vector<std::string> words = arguments;
    words.insert(words.begin(), program);
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    pid_t child = -1;
    const int failure = posix_spawn(&child, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) throw std::runtime_error("cannot start " + program);
    return child;
}

} // namespace

// Files instead of pipes: neither side ever waits for the other.
Finished runProgram(std::string_view name, const std::vector<std::string>& arguments, std::string_view input) {
    const TempFolder folder;
    std::ofstream(folder.file("in"), std::ios::binary) << input;
    const pid_t child = spawn(std::string(HERBERGO_BIN) + "/" + std::string(name), arguments, folder);
    int status = 0;
    waitpid(child, &status, 0);
    return {.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            .output = contentOf(folder.file("out")),
            .errors = contentOf(folder.file("err"))};
}

} // namespace support
