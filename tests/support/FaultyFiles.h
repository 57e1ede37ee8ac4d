// The file system with a fault in it, to try every operation of a sequence as the one that breaks.
#pragma once

#include "files/FileLayer.h"

#include <set>

namespace emporium::test {

enum class Fault {
    Once,    // the n-th operation fails, all others work
    Lasting, // the n-th operation fails, and so does every later one
    Killed   // the program ends within the n-th operation
};

/// Thrown where the program would end.
struct KilledHere {};

/// The real file system without the waiting for the disk, which takes time and shows nothing here.
inline FileLayer QuickFiles() {
    FileLayer files = SystemFiles();
    files.flush = [](FileLayer::Handle) { return std::error_code(); };
    files.flushFolder = [](const FileLayer::Path&) { return std::error_code(); };
    return files;
}

class FaultyFiles {
public:
    /// Operations are counted from 1. A faulty write still brings half of its bytes to the disk.
    FaultyFiles(Fault fault, int n) : fault_(fault), n_(n) {
        GuardRead();
        GuardHandles();
        Guard(files.flush);
        Guard(files.copyMode);
        Guard(files.rename);
        Guard(files.remove);
        Guard(files.flushFolder);
    }
    ~FaultyFiles() { CloseAll(); }
    FaultyFiles(const FaultyFiles&) = delete;
    FaultyFiles& operator=(const FaultyFiles&) = delete;

    FileLayer files = QuickFiles();

    bool HasFired() const { return count_ >= n_; }

private:
    bool Strikes() {
        ++count_;
        return fault_ == Fault::Lasting ? count_ >= n_ : count_ == n_;
    }

    // What the system does for a program that has ended.
    void CloseAll() {
        for (const FileLayer::Handle handle : open_)
            SystemFiles().close(handle);
        open_.clear();
    }

    std::error_code Fail() {
        if (fault_ == Fault::Killed) {
            CloseAll();
            throw KilledHere();
        }
        return std::make_error_code(std::errc::no_space_on_device);
    }

    template <typename... Arguments>
    void Guard(std::function<std::error_code(Arguments...)>& operation) {
        operation = [this, real = operation](Arguments... arguments) {
            return Strikes() ? Fail() : real(arguments...);
        };
    }

    void GuardRead() {
        files.read = [this, real = files.read](const FileLayer::Path& file) {
            return Strikes() ? FileText{FileText::State::Unreadable, {}, Fail()} : real(file);
        };
    }

    void GuardHandles() {
        using Handle = FileLayer::Handle;
        files.createNew = [this, real = files.createNew](const auto& file, Handle& handle) {
            const std::error_code error = Strikes() ? Fail() : real(file, handle);
            if (!error)
                open_.insert(handle);
            return error;
        };
        files.write = [this, real = files.write](Handle handle, std::string_view bytes,
                                                 std::size_t& written) {
            if (!Strikes())
                return real(handle, bytes, written);
            real(handle, bytes.substr(0, bytes.size() / 2), written);
            return Fail();
        };
        files.close = [this, real = files.close](Handle handle) {
            open_.erase(handle);
            const std::error_code error = real(handle);
            return Strikes() ? Fail() : error;
        };
    }

    Fault fault_;
    int n_;
    int count_ = 0;
    std::set<FileLayer::Handle> open_;
};

} // namespace emporium::test
