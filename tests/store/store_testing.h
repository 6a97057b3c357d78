// What the tests of the store share: databases for one test.
#ifndef STORE_TESTING_H
#define STORE_TESTING_H

#include "store/database.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

/// An empty directory, removed with all it holds at the end of the test.
class TemporaryDirectory {
public:
    TemporaryDirectory()
        : path_(std::filesystem::temp_directory_path() / ("znbrowser." + std::to_string(getpid()))) {
        std::filesystem::create_directory(path_);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

    std::string File(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

/// A new database in memory, made by a script.
inline std::unique_ptr<znhost::Database> MemoryDatabase(const std::string& script) {
    std::string error;
    auto database = znhost::Database::OpenMemory(error);
    EXPECT_TRUE(database) << error;
    EXPECT_TRUE(database->RunScript(script, error)) << error;
    return database;
}

/// What a statement answers: the rows joined by '|', their values by ',', or the error.
inline std::string Answer(znhost::Database& database, const std::string& sql,
                          const std::vector<znhost::Value>& values = {}) {
    znhost::Database::Rows rows;
    std::string answer;
    if (!database.Run(sql, values, rows, answer)) return answer;
    for (const auto& row : rows) {
        if (&row != &rows.front()) answer += '|';
        for (const auto& value : row) answer += (&value != &row.front() ? "," : "") + value;
    }
    return answer;
}

#endif
