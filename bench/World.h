// An invented world of any size for the benchmarks, in a program folder of its own.
#pragma once

#include "base/Platform.h"
#include "base/Variablen.h"
#include "regions/Availability.h"
#include "shopeditor/ShopList.h"
#include "store/CategoryFiles.h"
#include "store/RecordText.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace emporium::bench {

constexpr int Categories = 50;

inline std::string CategoryName(int number) {
    return "Kategorie" + std::to_string(number);
}

/// Reading a file and counting its line ends, which no reader of lines can do without.
inline std::ptrdiff_t CountLines(const FileLayer& files, const std::filesystem::path& file) {
    const FileText text = files.read(file, LargestFile);
    return std::count(text.bytes.begin(), text.bytes.end(), '\n');
}

class World {
public:
    /// `items` records, spread evenly over the categories.
    World(int items, int categories) {
        std::string pattern = (std::filesystem::temp_directory_path() / "benchXXXXXX").string();
        root = ::mkdtemp(pattern.data());
        folders = InitFolders(root);
        std::filesystem::create_directories(folders.EmporiumFolder());
        std::filesystem::create_directories(folders.TempFolder);
        std::vector<std::vector<ItemRecord>> records(static_cast<std::size_t>(categories));
        for (int i = 0; i < items; ++i)
            records[static_cast<std::size_t>(i % categories)].push_back(Record(i));
        std::string list = " " + std::to_string(categories) + " \r\n";
        std::string config = "[Alles]\r\nWareCount=" + std::to_string(categories) + "\r\n";
        for (int c = 0; c < categories; ++c) {
            const std::string name = CategoryName(c);
            Write(name + ".dat", WithRecords("", records[static_cast<std::size_t>(c)]));
            list += name + "\r\n";
            config += "Ware" + std::to_string(c + 1) + "=" + name + "\r\n";
        }
        Write("ItemKategorien.dat", list);
        Write("ShopgeneratorShops.dat", "Alles\r\n");
        Write("ShopgeneratorConfig.dat", config);
        platform.disk = {SystemFiles(), folders};
        platform.ShowMessage = [](std::string_view) {};
        platform.SetWaitPointer = [](bool) {};
    }

    ~World() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }

    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Writes a file below the data folder and gives its path.
    std::filesystem::path WriteData(const std::filesystem::path& name,
                                    const std::string& bytes) const {
        const auto file = folders.DataFolder / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    /// As long as the starter files' records are on average.
    static ItemRecord Record(int number) {
        static const std::vector<std::string> regions = {FullAvailability(), "BO|GA|TH|", "MO|WA|",
                                                         "NO|"};
        const std::size_t mixed = static_cast<std::size_t>(number) * 2654435761U % 100003U;
        return {"Gegenstand " + std::to_string(mixed) + std::to_string(1 + number % 5),
                std::to_string(number % 300), std::to_string(1 + mixed % 900) + "DSHP"[number % 4],
                "Ein Ding, das ein Händler auf den Tisch legt, wenn ihn jemand danach fragt.",
                regions[mixed % 4]};
    }

    std::filesystem::path root;
    Folders folders;
    Platform platform;

private:
    void Write(const std::string& name, const std::string& bytes) const {
        WriteData(std::filesystem::path("Emporium") / name, bytes);
    }
};

inline ShopEditor FilledShop(std::int64_t rows) {
    ShopEditor shop;
    for (int i = 0; i < rows; ++i)
        shop.lvLaden.rows.push_back(MakeShopRow(ViewOf(World::Record(i))));
    ArrangeShopList(shop);
    UpdateShopButtons(shop);
    return shop;
}

} // namespace emporium::bench
