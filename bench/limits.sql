-- Reads the results of the benchmarks (bench.json in the working directory) and prints tables: what was measured,
-- what could not be, and which limits hold. The benchmarks whose limits do not hold are written to bench.again, as the
-- filter that runs them once more. "Growth" is the time that an element takes, to that in the smallest size.
-- Of repeated measurements the best counts: whatever else the machine did made the others worse.

.mode box
.nullvalue ''

create temp table run as
select substr(name, 1, instr(name || '/iterations', '/iterations') - 1) as name, min(ns) as ns,
       min(per_element) as per_element, min(ratio) as ratio, min(mebibytes) as mebibytes
from (select replace(json_extract(value, '$.run_name'), '/manual_time', '') as name,
             json_extract(value, iif(json_extract(value, '$.run_name') like '%manual_time', '$.real_time',
                                     '$.cpu_time')) *
                 case json_extract(value, '$.time_unit')
                     when 'ns' then 1 when 'us' then 1e3 when 'ms' then 1e6 else 1e9 end as ns,
             coalesce(json_extract(value, '$.ns_per_element'),
                      json_extract(value, '$.per_word') * 1e9) as per_element,
             json_extract(value, '$.ratio') as ratio,
             json_extract(value, '$.MiB') as mebibytes
      from json_each(cast(readfile('bench.json') as text), '$.benchmarks')
      where json_extract(value, '$.run_type') = 'iteration'
        and json_extract(value, '$.error_occurred') is null)
group by 1;

-- A benchmark of one family in several sizes: Family/Size.
create temp view sized as
select *, substr(name, 1, instr(name, '/') - 1) as family,
       cast(substr(name, instr(name, '/') + 1) as integer) as size
from run where name like '%/%';

create temp view grown as
select name, family, size,
       per_element / first_value(per_element) over (partition by family order by size) as growth
from sized where per_element is not null;

create temp view command as
select ns, (select ns from run where name = 'NoOpCommand') as noop,
       (select ns from run where name = 'EnsembleCommand') as ensemble
from run where name = 'SetColumnCaption';

select name as benchmark,
       case when ns < 1e3 then printf('%.1f ns', ns)
            when ns < 1e6 then printf('%.1f us', ns / 1e3)
            when ns < 1e9 then printf('%.1f ms', ns / 1e6)
            else printf('%.2f s', ns / 1e9) end as time,
       iif(is_command, printf('%.2f', ns / (select noop from command)), null) as 'to no-op',
       (select printf('%.2f', run.ns / ensemble) from command where is_command and ensemble is not null) as 'to ensemble',
       iif(ratio is null, null, printf('%.2f', ratio)) as 'to treeview',
       iif(per_element is null, null, printf('%.1f', per_element)) as 'ns an element',
       (select printf('%.2f', growth) from grown where grown.name = run.name) as growth,
       iif(mebibytes is null, null, printf('%.1f', mebibytes)) as MiB
from (select *, name in ('NoOpCommand', 'EnsembleCommand', 'SetColumnCaption', 'GetColumnCaption', 'UsageText')
                    as is_command
      from run) as run
order by name;

-- What could not be measured here.
select substr(name, 1, instr(name || '/iterations', '/iterations') - 1) as 'not measured', why
from (select distinct json_extract(value, '$.run_name') as name, json_extract(value, '$.error_message') as why
      from json_each(cast(readfile('bench.json') as text), '$.benchmarks')
      where json_extract(value, '$.error_occurred') is not null)
order by name;

-- What takes how long in seconds at most: benchmark, what it does, the limit.
create temp table slowest(name, what, bound);
insert into slowest values
    ('ExpandList/1000000', 'expanding a list of 1,000,000', 1),
    ('CollectAndIsolate/100000', 'collecting and isolating 100,000 of 1,000,000', 1),
    ('CollectAndIsolate/1000', 'collecting and isolating 1,000 of 1,000,000', 0.2),
    ('UndoIsolation/100000', 'taking back the isolation of 100,000', 0.5),
    ('ExpandAll/100000', 'expanding 100,000 containers', 0.4),
    ('FilterByText/1000000', 'filtering 1,000,000 by a text', 0.4),
    ('FindFirst/1000000', 'finding a text in 1,000,000', 0.4),
    ('SortByIndex/1000000', 'sorting 1,000,000 by an indexed column', 0.3),
    ('SortByText/1000000', 'sorting 1,000,000 by a text', 0.8),
    ('UpdateRow/1000000', 'a changed row of 1,000,000', 0.005),
    ('ReplaceRow/1000000', 'a row of 1,000,000 that goes and one that comes', 0.005),
    ('OpenList/10000000', 'the first rows of 10,000,000', 1),
    ('ServerOpen/dense', 'the first page of 1,000,000 rows of a server', 0.1),
    ('ServerOpen/gaps', 'the first page of 1,000,000 with gaps in the keys', 0.1),
    ('ServerOpen/texts', 'the first page of 1,000,000 known by texts', 0.1),
    ('ServerOpen/pairs', 'the first page of 1,000,000 known by two columns', 0.1),
    ('ServerPages/dense', 'page by page of 1,000,000 rows of a server', 0.01),
    ('ServerPages/gaps', 'page by page of 1,000,000 with gaps in the keys', 0.01),
    ('ServerPages/texts', 'page by page of 1,000,000 known by texts', 0.01),
    ('ServerPages/pairs', 'page by page of 1,000,000 known by two columns', 0.01);

-- Two benchmarks, and how many times the second the first may take.
create temp table compared(name, other, what, bound);
insert into compared values
    ('SetColumnCaption', 'NoOpCommand', 'a command of five words, to a no-op', 2.6),
    ('KeywordHit', 'PerfectHashHit', 'keyword lookup, hit, to a perfect hash', 1.5),
    ('KeywordMiss', 'PerfectHashMiss', 'keyword lookup, miss, to a perfect hash', 1.5),
    ('Page/1000000', 'PageByKey/1000000', '50 rows of 1,000,000, to reading them by key', 4),
    ('Page/1000000', 'Page/10000', '50 rows of 1,000,000, to 50 of 10,000', 1.5),
    ('CollapseAll/100000', 'ExpandAll/100000', 'collapsing 100,000 containers, to expanding them', 1.3),
    ('ExpandSelected/100000', 'ExpandAll/100000', 'expanding what is selected, to expanding all', 1.3),
    ('RestoreExpanded/100000', 'ExpandAll/100000', 'expanding 100,000 kept rows, to expanding all', 1.3),
    ('RestoreState/100000', 'ExpandAll/100000', 'restoring a state with 100,000 expanded rows, to expanding all', 1.4),
    ('PageOfList/10000000', 'PageOfList/10000', '50 rows of 10,000,000, to 50 of 10,000', 1.5),
    ('PageAtEnd/10000000', 'PageOfList/10000', 'the last 50 of 10,000,000, to 50 of 10,000', 1.5),
    ('LongPage/1048576', 'LongPage/10', '50 rows with texts of 1 MiB, to 50 with short ones', 2),
    ('WidePage/300', 'WidePage/3', '50 rows of a table with 300 columns, to one with 3', 2),
    ('PageOfIsolated/100000', 'PageOfWhole/100000', '50 rows of an isolated view, to 50 of the whole', 1.2);

-- The most that families of benchmarks may grow an element.
create temp table growing(family, what, bound);
insert into growing values
    ('SourceNames', 'names of sources', 1.5),
    ('CustomSourceNames', 'names of custom sources', 1.5),
    ('Items', 'items of rows', 1.5),
    ('CreateFolders', 'folders', 1.5),
    ('SelectTenthByValue', 'selecting by value', 1.5),
    ('SelectRows', 'selecting rows', 1.5),
    ('ExpandAll', 'expanding containers', 1.5),
    ('AppRows', 'rows as a list', 1.5),
    ('AppDraw', 'rows as a drawing', 1.5);

-- The most memory, in MiB.
create temp table largest(name, what, bound);
insert into largest values
    ('ExpandList/1000000', 'expanding a list of 1,000,000', 64),
    ('CollectAndIsolate/100000', 'collecting and isolating 100,000 of 1,000,000', 16),
    ('OpenList/10000000', 'expanding a list of 10,000,000', 95),
    ('Windows/1000', '1,000 windows on a list of 1,000,000', 64);

-- One row a limit: what, the value, the most it may be, and the benchmarks that measure it.
create temp table measured as
select what, first.ns / second.ns as value, bound,
       '^(' || compared.name || '|' || other || ')(/|$)' as benchmarks
from compared join run as first using (name) join run as second on second.name = other
union all
select what || ', ' || size || ', growth an element', growth, bound, '^' || family || '/'
from growing join grown using (family) where growth <> 1
union all
select what || ', s', ns / 1e9, bound, '^' || name || '(/|$)' from slowest join run using (name)
union all
select what || ', MiB', mebibytes, bound, '^' || name || '(/|$)' from largest join run using (name)
union all
select 'a column''s caption, to a ttk::treeview heading', ratio, 0.8, '^' || name from run where ratio is not null;

select what as 'limit', printf('%.2f', value) as measured, printf('%.2f', bound) as 'at most',
       case when value <= bound then 'holds' else 'DOES NOT HOLD' end as verdict
from measured;

.mode list
.headers off
.once bench.again
select group_concat(benchmarks, '|') from (select distinct benchmarks from measured where value > bound);
