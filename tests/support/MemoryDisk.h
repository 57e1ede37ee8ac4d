// A disk in memory. Any of its calls can fail or be the last one, and a power cut takes what was
// not flushed: contents, names, or both, but for removals then.
#pragma once

#include "base/Variablen.h"
#include "files/FileLayer.h"
#include "support/Lines.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace emporium::test {

/// What can befall an operation in a call of the disk; the losses are those of a power cut.
enum class Trouble { Fails, FailsFromThenOn, Killed, ContentsLost, NamesLost, BothLost };

class MemoryDisk {
public:
    using Path = FileLayer::Path;
    using Kind = FileStatus::Kind;

    struct Node {
        Kind kind = Kind::File;
        std::string bytes, flushed; // of a link: where it leads
        bool writable = true;
    };

    MemoryDisk() {
        for (const auto& folder :
             {folders.EmporiumFolder(), folders.DataFolder / "Arsenal", folders.TempFolder,
              folders.HtmlFolder, folders.DataFolder / "Atlas", folders.DataFolder / "Borough"})
            Put(folder, "", Kind::Folder);
    }

    Folders folders = InitFolders("/programm");
    std::string failingCall; // by name and file, e.g. "read Kleidung.dat"
    std::set<int> failing;   // calls by number, from 1
    int calls = 0;
    bool locked = false;    // also by another copy
    bool unguarded = false; // the categories' folder was changed while nobody held the lock
    std::vector<Node> nodes;
    std::map<std::u8string, std::size_t> names, flushedNames; // by path

    Node& Put(const Path& path, std::string bytes, Kind kind = Kind::File) {
        names[path.generic_u8string()] = flushedNames[path.generic_u8string()] = nodes.size();
        return nodes.emplace_back(Node{kind, bytes, bytes, true});
    }

    /// A file below Data, e.g. "Emporium/Kleidung.dat" with ANSI bytes; the name is ANSI too.
    void Write(std::string_view name, std::string bytes) {
        Put(folders.DataFolder / ToPath(name), std::move(bytes));
    }
    std::string Read(std::string_view name) const {
        const Node* node = Find(folders.DataFolder / ToPath(name));
        return node ? node->bytes : "(absent)";
    }
    void Remove(std::string_view name) {
        names.erase((folders.DataFolder / ToPath(name)).generic_u8string());
    }

    /// Does the work with trouble in its n-th call and a second one failing; true if it got there.
    bool Suffer(Trouble trouble, int n, int second, const std::function<void()>& work) {
        calls = 0;
        removesAtOnce = trouble == Trouble::BothLost;
        failing = {second, trouble == Trouble::Fails ? n : second};
        failingFrom = trouble == Trouble::FailsFromThenOn ? n : never;
        lastCall = trouble >= Trouble::Killed ? n : never;
        try {
            work();
        } catch (const KilledHere&) {
        }
        return calls >= n;
    }

    /// What a new start finds after such trouble, with nothing failing.
    void Restart(Trouble trouble) {
        if (trouble == Trouble::ContentsLost || trouble == Trouble::BothLost)
            for (Node& node : nodes)
                node.bytes = node.flushed;
        if (trouble >= Trouble::NamesLost)
            names = flushedNames;
        failing.clear();
        failingFrom = lastCall = never;
        locked = false;
    }

    const Node* Find(const Path& path) const {
        const auto found = names.find(path.generic_u8string());
        return found == names.end() ? nullptr : &nodes[found->second];
    }

    std::map<std::string, std::string> Contents(const Path& folder) const {
        std::map<std::string, std::string> contents;
        for (const auto& [name, node] : names)
            if (Path(name).parent_path() == folder)
                contents[FromPath(Path(name).filename())] = nodes[node].bytes;
        return contents;
    }

    FileLayer Files() {
        using Handle = FileLayer::Handle;
        FileLayer files;
        files.read = [this](const Path& file, std::size_t) {
            auto error = Count("read", file);
            const Node* node = Find(file);
            if (node && node->kind == Kind::Link)
                node = Find(node->bytes);
            if (!error && node && node->kind != Kind::File)
                error = std::make_error_code(std::errc::operation_not_supported);
            if (error)
                return FileText{FileText::State::Unreadable, {}, error};
            return node ? FileText{FileText::State::Whole, node->bytes, {}} : FileText();
        };
        files.status = [this](const Path& path) {
            const auto error = Count("status", path);
            const Node* node = error ? nullptr : Find(path);
            return node ? FileStatus{node->kind, node->writable, false, {}}
                        : FileStatus{Kind::Absent, false, false, error};
        };
        files.linkTarget = [this](const Path& path) {
            const Node* node = Count("linkTarget", path) ? nullptr : Find(path);
            return node && node->kind == Kind::Link ? Path(node->bytes) : Path();
        };
        files.entries = [this](const Path& folder, std::vector<Path>& found) {
            const auto error = Count("entries", folder);
            for (const auto& [name, bytes] : Contents(error ? Path() : folder))
                found.push_back(folder / ToPath(name));
            return error;
        };
        files.sameFile = [this](const Path& a, const Path& b) {
            return !Count("sameFile", a) && Find(a) && Find(a) == Find(b);
        };
        files.createNew = [this](const Path& file, Handle& handle) {
            const Node* folder = Find(file.parent_path());
            if (const auto error = CountChange("createNew", file))
                return error;
            if (Find(file) || !folder || !folder->writable)
                return std::make_error_code(Find(file) ? std::errc::file_exists
                                            : folder   ? std::errc::permission_denied
                                                       : std::errc::no_such_file_or_directory);
            handle = static_cast<Handle>(names[file.generic_u8string()] = nodes.size());
            nodes.emplace_back();
            return std::error_code();
        };
        files.overwrite = [this](const Path& file, Handle& handle) {
            handle = static_cast<Handle>(names.at(file.generic_u8string()));
            At(handle).bytes.clear();
            return CountChange("overwrite", file);
        };
        files.write = [this](Handle handle, std::string_view bytes, std::size_t& written) {
            const auto error = Count("write");
            written = std::min(bytes.size() / (error ? 2 : 1), std::size_t{4000}); // a part
            At(handle).bytes.append(bytes.substr(0, written));
            return error;
        };
        files.flush = [this](Handle handle) {
            const auto error = Count("flush");
            if (!error)
                At(handle).flushed = At(handle).bytes;
            return error;
        };
        files.close = [this](Handle) { return Count("close"); };
        files.copyMode = [this](const Path&, const Path& to) { return Count("copyMode", to); };
        files.rename = [this](const Path& from, const Path& to) {
            if (const auto error = CountChange("rename", to); error || !Find(from))
                return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
            names[to.generic_u8string()] = names.extract(from.generic_u8string()).mapped();
            return std::error_code();
        };
        files.remove = [this](const Path& file) {
            const auto error = CountChange("remove", file);
            if (!error && names.erase(file.generic_u8string()) > 0 && removesAtOnce)
                flushedNames.erase(file.generic_u8string());
            return error;
        };
        files.flushFolder = [this](const Path& folder) {
            const auto isIn = [&folder](const auto& entry) {
                return Path(entry.first).parent_path() == folder;
            };
            if (const auto error = Count("flushFolder", folder))
                return error;
            std::erase_if(flushedNames, isIn);
            std::copy_if(names.begin(), names.end(),
                         std::inserter(flushedNames, flushedNames.end()), isIn);
            return std::error_code();
        };
        files.createFolder = [this](const Path& folder) {
            const auto error = Count("createFolder", folder);
            if (!error && !Find(folder))
                Put(folder, "", Kind::Folder);
            return error;
        };
        files.claim = [this](const Path& folder) {
            static_cast<void>(Count("claim", folder)); // that fails leaves no mark
            return FolderClaim();
        };
        files.lock = [this](const Path& folder, std::shared_ptr<void>& lock) {
            if (locked)
                return std::make_error_code(std::errc::device_or_resource_busy);
            const auto error = Count("lock", folder);
            if (!error)
                lock = std::shared_ptr<void>(nullptr, [this](void*) { locked = false; });
            locked = !error;
            return error;
        };
        return files;
    }

private:
    struct KilledHere {}; // thrown where the program would end
    static constexpr int never = 1 << 30;
    int failingFrom = never, lastCall = never; // calls; the program ends in the last
    bool removesAtOnce = false;                // reach the disk before what was done earlier

    Node& At(FileLayer::Handle handle) { return nodes[static_cast<std::size_t>(handle)]; }

    // What works on an open file knows no path.
    std::error_code Count(std::string_view call, const Path& path = {}) {
        if (++calls == lastCall)
            throw KilledHere();
        const bool fails = failing.contains(calls) || calls >= failingFrom ||
                           (failingCall.starts_with(call) &&
                            failingCall.substr(call.size() + 1) == FromPath(path.filename()));
        return fails ? std::make_error_code(std::errc::no_space_on_device) : std::error_code();
    }

    std::error_code CountChange(std::string_view call, const Path& file) {
        unguarded |= !locked && file.parent_path() == folders.EmporiumFolder();
        return Count(call, file);
    }
};

/// Tries every trouble in every call, until `tries` says that there is no n-th one.
inline void Sweep(const std::function<bool(Trouble trouble, int n)>& tries) {
    for (const Trouble trouble : {Trouble::Fails, Trouble::FailsFromThenOn, Trouble::Killed,
                                  Trouble::ContentsLost, Trouble::NamesLost, Trouble::BothLost})
        for (int n = 1, reached = 1; reached == 1; ++n) {
            SCOPED_TRACE(testing::Message() << n << ", trouble " << static_cast<int>(trouble));
            reached = tries(trouble, n) ? 1 : 0;
        }
}

} // namespace emporium::test
