// A disk in memory. Any of its calls can fail or be the last one, and a power cut takes what was
// not flushed: contents, names or both, or of the names all but removals.
#pragma once

#include "base/Variablen.h"
#include "files/FileLayer.h"
#include "support/Lines.h"
#include "text/Ansi.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace emporium::test {

/// Thrown where the program would end.
struct KilledHere {};

class MemoryDisk {
public:
    using Path = FileLayer::Path;
    using Kind = FileStatus::Kind;

    struct Node {
        Kind kind = Kind::File;
        std::string bytes, flushed; // of a link: where it leads
        bool writable = true;
    };
    using Names = std::map<std::u8string, std::size_t>;

    MemoryDisk() {
        for (const auto& folder :
             {folders.EmporiumFolder(), folders.DataFolder / "Arsenal", folders.TempFolder,
              folders.HtmlFolder, folders.DataFolder / "Atlas", folders.DataFolder / "Borough"})
            Put(folder, "", Kind::Folder);
    }

    Folders folders = InitFolders("/programm");
    std::set<int> failing;     // numbers of calls that fail, from 1
    int failingFrom = 1 << 30; // so do all from this one on
    int lastCall = 1 << 30;    // the program ends in this one
    int calls = 0;
    bool removesAtOnce = false; // reach the disk before what was done earlier
    std::vector<Node> nodes;
    Names names, flushedNames; // by path

    Node& Put(const Path& path, std::string bytes, Kind kind = Kind::File) {
        names[path.generic_u8string()] = flushedNames[path.generic_u8string()] = nodes.size();
        nodes.push_back({kind, bytes, bytes, true});
        return nodes.back();
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

    /// What a new start finds, with nothing failing.
    void Restart() {
        failing.clear();
        failingFrom = lastCall = 1 << 30;
        locked = false;
    }
    void CutPower(bool takesContents, bool takesNames) {
        if (takesContents)
            for (Node& node : nodes)
                node.bytes = node.flushed;
        if (takesNames)
            names = flushedNames;
        Restart();
    }

    FileLayer Files() {
        using Handle = FileLayer::Handle;
        FileLayer files;
        files.read = [this](const Path& file, std::size_t) { return ReadFile(file); };
        files.status = [this](const Path& path) { return StatusOf(path); };
        files.linkTarget = [this](const Path& path) {
            const Node* node = Find(path);
            return node && node->kind == Kind::Link ? Path(node->bytes) : Path();
        };
        files.entries = [this](const Path& folder) {
            std::vector<Path> entries;
            for (const auto& [name, node] : names)
                if (Path(name).parent_path() == folder)
                    entries.emplace_back(name);
            return entries;
        };
        files.sameFile = [this](const Path& a, const Path& b) {
            return Find(a) && Find(a) == Find(b);
        };
        files.createNew = [this](const Path& file, Handle& handle) {
            if (const auto error = Count())
                return error;
            if (Find(file))
                return std::make_error_code(std::errc::file_exists);
            if (!Find(file.parent_path()))
                return std::make_error_code(std::errc::no_such_file_or_directory);
            if (!Find(file.parent_path())->writable)
                return std::make_error_code(std::errc::permission_denied);
            handle = static_cast<Handle>(names[file.generic_u8string()] = nodes.size());
            nodes.emplace_back();
            return std::error_code();
        };
        files.overwrite = [this](const Path& file, Handle& handle) {
            handle = static_cast<Handle>(names.at(file.generic_u8string()));
            nodes[static_cast<std::size_t>(handle)].bytes.clear();
            return Count();
        };
        files.write = [this](Handle handle, std::string_view bytes, std::size_t& written) {
            const auto error = Count();
            written = std::min(bytes.size() / (error ? 2 : 1), std::size_t{4000}); // a part
            nodes[static_cast<std::size_t>(handle)].bytes.append(bytes.substr(0, written));
            return error;
        };
        files.flush = [this](Handle handle) {
            const auto error = Count();
            Node& node = nodes[static_cast<std::size_t>(handle)];
            if (!error)
                node.flushed = node.bytes;
            return error;
        };
        files.close = [this](Handle) { return Count(); };
        files.copyMode = [this](const Path&, const Path&) { return Count(); };
        files.rename = [this](const Path& from, const Path& to) {
            const auto error = Count();
            if (!error)
                names[to.generic_u8string()] = names.extract(from.generic_u8string()).mapped();
            return error;
        };
        files.remove = [this](const Path& file) {
            const auto error = Count();
            if (!error && names.erase(file.generic_u8string()) > 0 && removesAtOnce)
                flushedNames.erase(file.generic_u8string());
            return error;
        };
        files.flushFolder = [this](const Path& folder) { return FlushFolder(folder); };
        files.createFolder = [this](const Path& folder) {
            if (!Find(folder))
                Put(folder, "", Kind::Folder);
            return std::error_code();
        };
        files.claim = [](const Path&) { return FolderClaim(); };
        files.lock = [this](const Path&, std::shared_ptr<void>& lock) {
            if (locked)
                return std::make_error_code(std::errc::device_or_resource_busy);
            locked = true;
            lock = std::shared_ptr<void>(nullptr, [this](void*) { locked = false; });
            return Count();
        };
        return files;
    }

    bool locked = false; // also by another copy

private:
    const Node* Find(const Path& path) const {
        const auto found = names.find(path.generic_u8string());
        return found == names.end() ? nullptr : &nodes[found->second];
    }

    std::error_code Count() {
        if (++calls == lastCall)
            throw KilledHere();
        return failing.contains(calls) || calls >= failingFrom
                   ? std::make_error_code(std::errc::no_space_on_device)
                   : std::error_code();
    }

    FileText ReadFile(const Path& file) {
        if (const auto error = Count())
            return {FileText::State::Unreadable, {}, error};
        const Node* node = Find(file);
        if (node && node->kind == Kind::Link)
            node = Find(node->bytes);
        if (!node)
            return {};
        if (node->kind != Kind::File)
            return {FileText::State::Unreadable,
                    {},
                    std::make_error_code(std::errc::operation_not_supported)};
        return {FileText::State::Whole, node->bytes, {}};
    }

    FileStatus StatusOf(const Path& path) {
        const Node* node = Find(path);
        return node ? FileStatus{node->kind, node->writable, false, {}} : FileStatus();
    }

    std::error_code FlushFolder(const Path& folder) {
        if (const auto error = Count())
            return error;
        const auto isIn = [&folder](const auto& entry) {
            return Path(entry.first).parent_path() == folder;
        };
        std::erase_if(flushedNames, isIn);
        for (const auto& entry : names)
            if (isIn(entry))
                flushedNames.insert(entry);
        return {};
    }
};

} // namespace emporium::test
