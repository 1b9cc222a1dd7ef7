// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "process.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velm::test {

namespace {

void redirect(const std::string& path, int descriptor) {
    const int file = ::open(path.c_str(), O_WRONLY | O_TRUNC);
    dup2(file, descriptor);
    close(file);
}

/// The pipe on which Xvfb tells its display number; the write end has a fixed number that the child inherits.
constexpr int displayPipe = 37;

int openDisplayPipe() {
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe");
    }
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    dup2(ends[1], displayPipe);
    close(ends[1]);
    return ends[0];
}

/// A file with one entry, for any machine and any display: a cookie of this process.
std::string writeAuthority() {
    std::string path = temporaryFile();
    std::ofstream file(path, std::ios::binary);
    constexpr std::string_view kind{"\xFF\xFF\0\0\0\0\0\x12MIT-MAGIC-COOKIE-1\0\x10", 28};
    file.write(kind.data(), kind.size());
    std::random_device chance;
    for (int byte = 0; byte < 16; ++byte) {
        file.put(static_cast<char>(chance()));
    }
    return path;
}

/// What opens the servers of this process, to itself and its children; nobody else can look at them.
const std::string& authority() {
    static const struct Authority {
        std::string path = writeAuthority();
        ~Authority() { std::filesystem::remove(path); }
    } one;
    setenv("XAUTHORITY", one.path.c_str(), 1);
    return one.path;
}

std::vector<std::string> serverCommand(const std::string& depth, const std::string& size,
                                       const std::vector<std::string>& more) {
    std::vector<std::string> command = {"Xvfb",      "-displayfd", std::to_string(displayPipe),
                                        "-screen",   "0",          size + "x" + depth,
                                        "-nolisten", "tcp",        "-noreset",
                                        "-auth",     authority()};
    command.insert(command.end(), more.begin(), more.end());
    return command;
}

double processorSecondsOf(pid_t pid) {
    // The 14th and 15th word count ticks; the second, the name in brackets, has no blank in it here.
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    const std::vector<std::string> words{std::istream_iterator<std::string>(file), {}};
    return words.size() < 15
               ? 0
               : (std::stod(words[13]) + std::stod(words[14])) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// The number after a name in what the system tells about a process; 0 where there is none.
long statusOf(pid_t pid, std::string_view name) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    long number = 0;
    for (std::string word; status >> word;) {
        if (word == name) {
            status >> number;
        }
    }
    return number;
}

} // namespace

Environment spied(const std::string& display, const std::string& log, const Environment& more) {
    Environment all = {{"DISPLAY", display}, {"LD_PRELOAD", VELM_X11_SPY}, {"VELM_SPY", log}};
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::string temporaryFile() {
    std::string path = std::filesystem::temp_directory_path() / "velm-test-XXXXXX";
    close(mkstemp(path.data()));
    return path;
}

Child::Child(const std::vector<std::string>& arguments, const Environment& environment)
    : outputPath(temporaryFile()), errorPath(temporaryFile()) {
    pid = fork();
    if (pid != 0) {
        return;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM); // a test that dies takes its servers along
    for (const auto& [name, value] : environment) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
    redirect(outputPath, STDOUT_FILENO);
    redirect(errorPath, STDERR_FILENO);
    std::vector<char*> words;
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
}

Child::~Child() {
    if (isRunning()) {
        signal(SIGTERM);
        if (waitForExit(5) == -1) {
            signal(SIGKILL);
            waitForExit(5);
        }
    }
    std::filesystem::remove(outputPath);
    std::filesystem::remove(errorPath);
}

bool Child::isRunning() {
    rusage used{};
    if (!ended && wait4(pid, &status, WNOHANG, &used) == pid) {
        ended = true;
        peak = std::max(peak, used.ru_maxrss);
    }
    if (!ended) {
        peak = std::max(peak, statusOf(pid, "VmHWM:")); // which it has no more once it is dead
    }
    return !ended;
}

int Child::waitForExit(double seconds) {
    if (!eventually([this] { return !isRunning(); }, seconds)) {
        return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void Child::signal(int number) const {
    kill(pid, number);
}

double Child::processorSeconds() const {
    double seconds = processorSecondsOf(pid);
    const std::string id = std::to_string(pid);
    std::ifstream children("/proc/" + id + "/task/" + id + "/children");
    for (pid_t child = 0; children >> child;) {
        seconds += processorSecondsOf(child);
    }
    return seconds;
}

long Child::waits() const {
    return statusOf(pid, "voluntary_ctxt_switches:");
}

XServer::XServer(const std::string& depth, const std::string& size, const std::vector<std::string>& more)
    : readEnd(openDisplayPipe()), child(serverCommand(depth, size, more), {}) {
    close(displayPipe);
    char digit = 0;
    while (read(readEnd, &digit, 1) == 1 && digit != '\n') {
        name += digit;
    }
    close(readEnd);
    if (name.empty()) {
        throw std::runtime_error("Xvfb did not start: " + child.errors());
    }
    name.insert(0, ":");
}

int runTool(const std::vector<std::string>& arguments, const Environment& environment) {
    return Child(arguments, environment).waitForExit();
}

void pauseFor(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

double secondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace velm::test
