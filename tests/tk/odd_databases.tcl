# Databases of the kind that people have: odd names, types and sizes. Each is the statements that make it.
namespace eval odd {
    # A PNG of one pixel.
    variable pixel 89504E470D0A1A0A0000000D4948445200000001000000010802000000907753DE0000000C49444154789C63F8DFC0000004010180C52A185D0000000049454E44AE426082

    # Nothing, empty texts, numbers that are too long for a column, blobs.
    variable values [list \
        {create table thing (id integer primary key, name text, note text, big bigint, ratio double precision, data blob)} \
        "insert into thing values (1, 'whole', 'two\nlines', 1, 0.5, x'$pixel'), (2, 'bare', null, null, null, null),
            (3, 'empty', '', 9007199254740993, 3.14159265358979, x'00010203'), (4, null, 'nameless', 7, 1e300, zeroblob(5000))" \
    ]
    # Packages that depend on each other: two references from one table to another.
    variable packages {
        {create table package (id integer primary key, name text not null, section text)}
        {create table dependency (id integer primary key, package_id integer references package,
            needed_id integer references package, kind text)}
        {insert into package values (1, 'editor', 'text'), (2, 'library', 'libs'), (3, 'fonts', 'x11')}
        {insert into dependency values (1, 1, 2, 'needs'), (2, 1, 3, 'likes'), (3, 3, 2, 'needs')}
        {create view needed as select needed_id, count(*) as times from dependency group by 1}
    }
    # A caption that is wider than the values below it, and texts that are longer in one table than in the other.
    variable wordy {
        {create table book (id integer primary key, name text, remark text, a_caption_wider_than_its_values integer)}
        {create table shelf (id integer primary key, name text, remark text)}
        {insert into book values (1, 'short', 'brief', 1)}
        {insert into shelf values (1, 'wordy', 'a remark that is wider than columns are at first')}
    }
    # Rows that lie below each other, of which some go round in a circle.
    variable circle {
        {create table place (id integer primary key, name text, inside integer references place)}
        {insert into place values (1, 'country', null), (2, 'town', 1), (3, 'chicken', 4), (4, 'egg', 3), (5, 'shell', 4)}
    }
    # A chain of rows, each below the one before it, beside a list that is no tree; and more columns than fit.
    variable chain {
        {create table link (id integer primary key, name text, inside integer references link, one text, two text, three text, four text)}
        {with recursive n (i) as (select 1 union all select i + 1 from n where i < 80)
            insert into link select i, 'link ' || i, nullif(i - 1, 0), 'first text', 'second text', 'third text', 'fourth text' from n}
        {create table plain (id integer primary key, name text)}
        {insert into plain values (1, 'plain row')}
        {create view broken as select name, abs(-9223372036854775807 - 1) as value from plain}
    }
    # More columns than anybody looks at together.
    variable wide [apply {{} {
        for {set number 1} {$number <= 300} {incr number} {
            lappend columns "c$number integer"
            lappend values "i * $number"
        }
        return [list "create table wide (id integer primary key, name text, [join $columns ,])" \
            "with recursive n (i) as (select 1 union all select i + 1 from n where i < 200)
                insert into wide select i, 'row ' || i, [join $values ,] from n"]
    }}]
    # A check box for each row.
    variable tasks {
        {create table task (id integer primary key, name text, done boolean, rank integer)}
        {insert into task values (1, 'wash', false, 12), (2, 'dry', true, 3), (3, 'fold', null, 1)}
    }
    # Names that are nothing but a blank or nothing at all, words of SQL and Tcl, and values of other types than declared.
    variable strange [list \
        {create table "select" (" " integer primary key, "a ""b"" c" text, "[x] $y" real, "Ünïcödé ☃" blob, "" text)} \
        "insert into \"select\" values (1, 'line\nbreak', 1e308, x'00ff00', ''), (9223372036854775807, '\ttab', -0.0, zeroblob(100000), null),
            (-5, printf('%.100000c', 'x'), 0.1, 'text in a column of blobs', 12)" \
        "create table \"[string repeat {a name without end } 6]\" (k text primary key) without rowid" \
        "insert into \"[string repeat {a name without end } 6]\" values ('\x7ba b'), ('\$x \[exit\]'), ('-option'), ('#hash'), ('\u202ertl\u202c \u05e9\u05dc')" \
        {create view "v 1" as select * from "select"} {create table "empty one" (x)} \
        {create virtual table found using fts5 (body, title)} {insert into found values ('hello world', 't1')} \
        {create table loose (c1 numeric, c2 decimal(10,2), c3 datetime, c4 boolean, c5 json, c6 varchar(10))} \
        {insert into loose values (12345678901234567890, '1.50', '2024-01-01', 'yes', '{"a": [1]}', '0012'), ('abc', 'x', 1.5, 0, x'01', '007'), (null, null, null, null, null, null)} \
        {create table computed (a integer, b as (a * 2), c as (a || 'x') stored)} {insert into computed (a) values (1), (2)} \
    ]
    # The same of a server: names as long as it takes them, and types of its own.
    variable strangeOnServer [list \
        {create table "select" (" " bigint primary key, "a ""b"" c" text, "[x] $y" double precision, "Ünïcödé ☃" blob, "-" text)} \
        "insert into \"select\" values (1, 'line\nbreak', 1e308, x'00ff00', ''), (9223372036854775807, '\ttab', 'nan', zeroblob(100000), null),
            (-5, printf('%.100000c', 'x'), '-infinity', null, '12')" \
        "create table \"[string range [string repeat {a name without end } 6] 0 62]\" (k text primary key)" \
        "insert into \"[string range [string repeat {a name without end } 6] 0 62]\" values ('\x7ba b'), ('\$x \[exit\]'), ('-option'), ('#hash'), ('\u202ertl\u202c \u05e9\u05dc')" \
        {create view "v 1" as select * from "select"} {create table "empty one" ()} \
        {create table found (body tsvector, title text)} {insert into found values ('hello world', 't1')} \
        {create type mood as enum ('', 'so so')} \
        {create table loose (c1 numeric, c2 mood, c3 timestamptz, c4 int4range, c5 json, c6 text[])} \
        {insert into loose values (12345678901234567890.50, '', '2024-01-01', '[1,3)', '{"a": [1]}', '{a,null,"b c"}'), ('nan', 'so so', 'infinity', 'empty', '1', '{}'), (null, null, null, null, null, null)} \
        {create table computed (a integer, b integer generated always as (a * 2) stored, c interval)} {insert into computed (a, c) values (1, '1 mon -1 day'), (2, '0')} \
    ]
    # A tree of folders and files, ten in each.
    variable files {
        {create table file (id integer primary key, name text not null, parent integer references file, size integer, changed text)}
        {create index file_parent on file (parent)}
        {with recursive n (i) as (select 1 union all select i + 1 from n where i < 300000)
            insert into file select i, case when i > 30000 then 'file ' else 'folder ' end || i, case when i > 1 then (i - 2) / 10 + 1 end,
                case when i > 30000 then i * 7919 % 1000003 end, date('2024-01-01', (i % 365) || ' days') from n}
    }
    # As many tables as nobody remembers, each of which refers to the one before it.
    variable tables [apply {{} {
        for {set number 0} {$number < 600} {incr number} {
            set other [expr {max(0, $number - 1)}]
            lappend statements "create table \"t $number\" (id integer primary key, name text, value_$number integer, other_id integer references \"t $other\")" \
                "insert into \"t $number\" values (1, 'row of $number', $number, 1)"
        }
        return $statements
    }}]

    # Makes the file of that name in the tests' directory, or a database on the server.
    proc make {kind {name ""}} {
        set file [tcltest::makeFile "" [expr {$name eq "" ? "$kind.db" : $name}]]
        file delete $file
        set database [newDatabase $file]
        if {$database ne $file && [info exists ::odd::${kind}OnServer]} {append kind OnServer}
        znbrowsermanager app datactrl create [set control maker[incr ::odd::makers]] $database
        foreach statement [set ::odd::$kind] {znbrowsermanager app sql $control [dialect $statement]}
        return $database
    }
}
