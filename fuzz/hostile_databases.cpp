#include "fuzz/hostile_databases.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// The tables of the gearbox that hang together, with few columns and few rows: reading the tables takes most
/// of the time of a run.
constexpr char gearbox[] =
    "CREATE TABLE assembly (id INTEGER PRIMARY KEY, parent_id INTEGER REFERENCES assembly (id), name TEXT, "
    "code TEXT);"
    "CREATE TABLE part (id INTEGER PRIMARY KEY, assembly_id INTEGER REFERENCES assembly (id), name TEXT, "
    "mass REAL,"
    " colour INTEGER, released BOOLEAN);"
    "CREATE TABLE feature (id INTEGER PRIMARY KEY, part_id INTEGER REFERENCES part (id), name TEXT, diameter "
    "REAL);"
    "CREATE VIEW heavy_part AS SELECT id, name, mass FROM part WHERE mass >= 1;"
    "INSERT INTO assembly VALUES (1, NULL, 'Gearbox', 'GB'), (2, 1, 'Housing', 'GB-HOU'), (3, 2, 'Rear "
    "cover', NULL);"
    "INSERT INTO part VALUES (1, 2, 'Main case', 11.5, 255, 1), (2, 3, 'bolt', 0.02, NULL, 0), (3, NULL, '', "
    "NULL, 0, NULL);"
    "INSERT INTO feature VALUES (1, 1, 'hole 1', 8.5), (2, 1, 'hole 2', 8.5), (3, 2, 'thread', 8)";

/// Texts in UTF-8 as other programs store them, in it with a NUL, in Tcl's form, in no encoding at all.
constexpr char texts[] =
    "CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT, code TEXT);"
    "INSERT INTO part (name, code) VALUES (char(0x1F600) || ' smile', 'a' || char(0x1F600)), "
    "(CAST(x'EDA0BDEDB880' AS TEXT), CAST(x'C080' AS TEXT)), (CAST(x'610062' AS TEXT), char(0)), "
    "(CAST(x'61FF80C0' AS TEXT), CAST(x'F09F98' AS TEXT)), (CAST(x'EDA0BD' AS TEXT), 'e' || char(0x301)), "
    "(char(0x130, 0x131, 0x1E9E, 0xDF), char(0xFEFF, 0x202E, 0xFFFF)), "
    "('[exec x]', '$x'), ('{', '\"'), ('\\', '}'), ('a b', char(10, 9)), "
    "('0123456701234567', 'NaN'), ('08', '0x10'), ('1e999', '-'), ('', NULL), "
    "(replace(hex(zeroblob(50)), '0', 'a'), replace(hex(zeroblob(400)), '00', char(0x130)))";

/// Tables and columns whose names are code, quotes, blanks, words of SQL and of the host. Nobody calls the
/// command "name_that_ran" but who takes a name for a script.
constexpr char namesThatLookLikeCode[] =
    "CREATE TABLE \"[name_that_ran]\" (id INTEGER PRIMARY KEY, \"$up\" INTEGER REFERENCES "
    "\"[name_that_ran]\" (id), \"[name_that_ran]\" TEXT, name TEXT);"
    "INSERT INTO \"[name_that_ran]\" VALUES (1, NULL, '[name_that_ran]', '[name_that_ran]'), (2, 1, '$x', "
    "'\"; name_that_ran; \"');"
    "CREATE TABLE \"\"\"; name_that_ran; \"\"\" (\"}; name_that_ran; {\" TEXT, up INTEGER REFERENCES \"\"\"; "
    "name_that_ran; \"\"\");"
    "CREATE TABLE \"{\" (\"}\" TEXT, \"a b\" INTEGER REFERENCES \"select\" (\"from\"));"
    "INSERT INTO \"{\" VALUES ('}', 1);"
    "CREATE TABLE \"select\" (\"from\" INTEGER PRIMARY KEY, \"\" TEXT, \"*\" TEXT, \"a\"\"b\" BOOLEAN);"
    "INSERT INTO \"select\" VALUES (1, 'x', 'y', 1);"
    "CREATE TABLE script (value INTEGER REFERENCES script, \"part.id\" TEXT);"
    "CREATE TABLE \" \" (\" \" TEXT); INSERT INTO \" \" VALUES (' ');"
    "CREATE TABLE \"\xF0\x9F\x98\x80\" (\"\xC3\x9F\xF0\x9F\x98\x80\" TEXT, \"\xC4\xB0\" TEXT, \"e\xCC\x81\" "
    "TEXT);"
    "INSERT INTO \"\xF0\x9F\x98\x80\" VALUES ('a', 'b', 'c')";

/// Views that never end, that fail at once, in the middle, for want of their table.
constexpr char views[] =
    "CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT); INSERT INTO part VALUES (1, 'a'), (2, 'b');"
    "CREATE TABLE gone (id INTEGER PRIMARY KEY);"
    "CREATE VIEW a_endless AS WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM n) SELECT id "
    "FROM "
    "n WHERE id < 0;"
    "CREATE VIEW b_counting AS WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM n) SELECT id, "
    "'n' || id AS name FROM n;"
    "CREATE VIEW failing AS SELECT id, abs(-9223372036854775807 - id) AS name FROM part;"
    "CREATE VIEW json AS SELECT id, json_extract(name, '$') AS name FROM part;"
    "CREATE VIEW lost AS SELECT * FROM gone; DROP TABLE gone;"
    "CREATE VIEW unnamed AS SELECT 1, 1, NULL, x'00', 1.0 / 3";

/// Cells of nearly a megabyte that take no room in the file.
constexpr char huge[] =
    "CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT AS (printf('%.*c', 900000, 'n')), "
    "code TEXT AS (printf('%.*c', 900000, 'c')), data AS (zeroblob(900000)));"
    "INSERT INTO part (id) VALUES (9223372036854775807), (-9223372036854775808)";

/// What SQLite allows and others do not: texts and blobs in columns of numbers, no row numbers, no types.
constexpr char odd[] =
    "CREATE TABLE part (id TEXT PRIMARY KEY, mass REAL, released BOOLEAN, colour INTEGER) WITHOUT ROWID;"
    "INSERT INTO part VALUES ('a', 'heavy', 'yes', x'FF00'), ('', 9e999, 2, 9223372036854775807), "
    "('08', -9e999, -1, 1e300), ('A', NULL, NULL, NULL);"
    "CREATE TABLE assembly (rowid TEXT, _rowid_ TEXT, oid TEXT, name);"
    "INSERT INTO assembly VALUES ('r', 's', 't', x'F09F9880'), (1, 2, 3, 4.5);"
    "CREATE TABLE feature (a, b, c, PRIMARY KEY (c, a)) WITHOUT ROWID; INSERT INTO feature VALUES (1, x'00', "
    "0.1);"
    "CREATE TABLE empty (a REFERENCES part, b REFERENCES nowhere (x), c REFERENCES part (mass), "
    "FOREIGN "
    "KEY (a, b) REFERENCES feature (a, c));"
    "INSERT INTO empty VALUES ('a', 1, NULL), ('', NULL, 2)";

/// Rows below themselves, below each other, and very deep.
constexpr char references[] =
    "CREATE TABLE part (id INTEGER PRIMARY KEY, up INTEGER REFERENCES part (id), other INTEGER REFERENCES "
    "assembly (id), name TEXT);"
    "CREATE TABLE assembly (id INTEGER PRIMARY KEY, part INTEGER REFERENCES part (id), name TEXT);"
    "INSERT INTO part VALUES (1, 1, 1, 'itself'), (2, 3, 2, 'each'), (3, 2, 99, 'other'), (4, NULL, 1, "
    "'top');"
    "INSERT INTO assembly VALUES (1, 1, 'a'), (2, 4, 'b'), (3, 99, 'c');"
    "CREATE TABLE deep (id INTEGER PRIMARY KEY, up INTEGER REFERENCES deep (id));"
    "INSERT INTO deep VALUES (1, NULL); INSERT INTO deep WITH RECURSIVE n(id) AS (SELECT 2 UNION ALL SELECT "
    "id + 1 "
    "FROM n LIMIT 500) SELECT id, id - 1 FROM n";

/// Rows on a page of their own, which is damaged.
constexpr char damaged[] =
    "PRAGMA page_size = 512; CREATE TABLE assembly (id INTEGER PRIMARY KEY, name TEXT);"
    "INSERT INTO assembly VALUES (1, 'whole'); CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT, up "
    "REFERENCES "
    "part); CREATE INDEX by_name ON part (name);"
    "INSERT INTO part WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM n LIMIT 60) SELECT id, "
    "'part ' "
    "|| id, NULL FROM n";

/// A table of 300 columns.
std::string Wide() {
    std::string columns, values;
    for (int i = 0; i < 300; ++i) {
        columns += ", c" + std::to_string(i) + (i % 3 ? " TEXT" : " BOOLEAN");
        values += ", " + std::to_string(i);
    }
    return "CREATE TABLE part (id INTEGER PRIMARY KEY" + columns + "); INSERT INTO part VALUES (1" + values +
           ")";
}

} // namespace

void Die(const std::string& reason) {
    std::fprintf(stderr, "fuzz: ERROR: %s\n", reason.c_str());
    std::abort();
}

DatabaseImage::DatabaseImage(char mark, const char* script, bool damage) : mark_(mark) {
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    if (sqlite3_exec(database, script, nullptr, nullptr, nullptr)) Die(sqlite3_errmsg(database));
    sqlite3_int64 size = 0;
    unsigned char* const bytes = sqlite3_serialize(database, "main", &size, 0);
    sqlite3_close(database);
    bytes_.assign(bytes, bytes + size);
    sqlite3_free(bytes);
    constexpr std::size_t page = 512;
    if (damage) std::fill(bytes_.end() - page, bytes_.end() - page / 2, static_cast<unsigned char>(0xA5));
}

void DatabaseImage::CopyTo(sqlite3* database) const {
    const auto size = static_cast<sqlite3_int64>(bytes_.size());
    auto* const copy = static_cast<unsigned char*>(sqlite3_malloc64(bytes_.size()));
    std::memcpy(copy, bytes_.data(), bytes_.size());
    constexpr unsigned own = SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE;
    if (sqlite3_deserialize(database, "main", copy, size, size, own)) Die(sqlite3_errmsg(database));
}

const std::vector<DatabaseImage>& DatabaseImages() {
    static const std::vector<DatabaseImage> images = {
        {'\0', gearbox}, {'T', texts},      {'N', namesThatLookLikeCode}, {'V', views},          {'H', huge},
        {'O', odd},      {'R', references}, {'D', damaged, true},         {'W', Wide().c_str()},
    };
    return images;
}

const DatabaseImage& DatabaseImageOf(char mark) {
    const std::vector<DatabaseImage>& images = DatabaseImages();
    const auto found = std::find_if(images.begin(), images.end(),
                                    [mark](const DatabaseImage& image) { return image.Mark() == mark; });
    return found == images.end() ? images.front() : *found;
}
