// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/sources.h"

#include "platform/clock.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <sys/inotify.h>
#include <unistd.h>

namespace velm {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void giveUp(const std::string& what) {
    std::fprintf(stderr, "velm4030-live: %s: %s\n", what.c_str(), std::strerror(errno));
    std::exit(EXIT_FAILURE);
}

bool isSource(const fs::path& name) {
    constexpr std::array endings = {".cpp", ".cc", ".cxx", ".h", ".hpp", ".inc"};
    return std::ranges::find(endings, name.extension().string()) != endings.end();
}

fs::path makeFolder() {
    std::string name = (fs::temp_directory_path() / "velm4030-live-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        giveUp(name);
    }
    return name;
}

/// The words of a variable, or of `otherwise` where it is not set.
std::vector<std::string> wordsOf(const char* variable, const char* otherwise) {
    const char* const value = std::getenv(variable);
    std::istringstream stream(value == nullptr || *value == '\0' ? otherwise : value);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

Watch::Watch(const std::vector<std::string>& sources) : descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    std::set<std::string> folders;
    for (const std::string& source : sources) {
        const fs::path parent = fs::path(source).parent_path();
        folders.insert(parent.empty() ? "." : parent.string());
    }
    for (const std::string& folder : folders) {
        if (inotify_add_watch(descriptor, folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO) < 0) {
            giveUp(folder);
        }
    }
}

Watch::~Watch() {
    close(descriptor);
}

bool Watch::hasSaved() const {
    alignas(inotify_event) char bytes[4096];
    bool found = false;
    for (ssize_t count = 0; (count = read(descriptor, bytes, sizeof bytes)) > 0;) {
        for (const char* at = bytes; at < bytes + count;) {
            const auto* const event = reinterpret_cast<const inotify_event*>(at);
            found = found || (event->len > 0 && isSource(event->name));
            at += sizeof(inotify_event) + event->len;
        }
    }
    return found;
}

Workshop::Workshop(std::vector<std::string> sourceFiles, fs::path prefix)
    : sources(std::move(sourceFiles)), kit(std::move(prefix)), folder(makeFolder()), watch(sources) {
    compile();
}

Workshop::~Workshop() {
    compiler.reset();
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

/// Everything that the version has made, the compiler's temporary files, too; what runs already needs no
/// file.
void Workshop::forget(int number) const {
    std::error_code ignored;
    fs::remove_all(folder / std::to_string(number), ignored);
}

void Workshop::compile() {
    if (compiler != nullptr) {
        compiler.reset();
        forget(version);
    }
    saved = CLOCK_now();
    const fs::path place = folder / std::to_string(++version);
    fs::create_directory(place);
    std::vector<std::string> words = {"env", "TMPDIR=" + place.string()};
    const auto add = [&words](const std::vector<std::string>& more) {
        words.insert(words.end(), more.begin(), more.end());
    };
    const fs::path libraries = kit / VELM_LIBRARY_FOLDER;
    add(wordsOf("CXX", "c++"));
    add({"-std=c++20", "-O1", "-I" + (kit / VELM_INCLUDE_FOLDER).string()});
    add(wordsOf("CXXFLAGS", ""));
    add(sources);
    add({"-Wl,--start-group", (libraries / "libvelm.a").string(), (libraries / "libvelm-live.a").string(),
         "-Wl,--end-group", "-lpthread", "-o", (place / "program").string()});
    const int file = open((place / "log").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    compiler = std::make_unique<Process>(words, file, -1);
    close(file);
}

bool Workshop::step() {
    if (watch.hasSaved()) {
        compile();
    }
    if (compiler == nullptr || !compiler->hasEnded()) {
        return false;
    }
    forget(finished);
    finished = version;
    const fs::path place = folder / std::to_string(version);
    made = compiler->status() == 0 ? (place / "program").string() : "";
    log = contentsOf(place / "log");
    if (made.empty() && log.empty()) {
        log =
            "the compiler ended with status " + std::to_string(compiler->status()) + " and without a word\n";
    }
    compiler.reset();
    return true;
}

fs::path prefixOfProgram() {
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path();
}

std::string firstError(const std::string& said) {
    constexpr std::string_view mark = "error: ";
    constexpr std::string_view missing = "undefined reference"; // which the linker calls no error
    std::istringstream lines(said);
    for (std::string line; std::getline(lines, line);) {
        if (const std::size_t place = line.find(missing); place != std::string::npos) {
            return line.substr(place);
        }
        const std::size_t place = line.find(mark);
        if (place == std::string::npos) {
            continue;
        }
        const std::size_t colon = line.find(':');
        const std::string number = line.substr(colon + 1, line.find(':', colon + 1) - colon - 1);
        const bool hasNumber = colon < place && !number.empty() && number[0] != ' ';
        return (hasNumber ? number + ": " : "") + line.substr(place + mark.size());
    }
    return said.substr(0, said.find('\n'));
}

} // namespace velm
