-- Reads the results of the benchmarks (bench.json in the working directory) and prints two tables: what was
-- measured, and which limits hold. "Growth" is the time that an element takes, to that in the smallest size.
-- Of repeated measurements the best counts: whatever else the machine did made the others worse.

.mode box
.nullvalue ''

create temp table run as
select substr(name, 1, instr(name || '/iterations', '/iterations') - 1) as name, min(ns) as ns,
       min(per_element) as per_element, min(growth) as growth, min(ratio) as ratio, min(mebibytes) as mebibytes,
       min(key) as place
from (select key, json_extract(value, '$.run_name') as name,
             json_extract(value, iif(json_extract(value, '$.run_name') like '%manual_time', '$.real_time',
                                     '$.cpu_time')) *
                 case json_extract(value, '$.time_unit')
                     when 'ns' then 1 when 'us' then 1e3 when 'ms' then 1e6 else 1e9 end as ns,
             coalesce(json_extract(value, '$.ns_per_element'),
                      json_extract(value, '$.per_word') * 1e9) as per_element,
             json_extract(value, '$.growth') as growth,
             json_extract(value, '$.ratio') as ratio,
             json_extract(value, '$.MiB') as mebibytes
      from json_each(cast(readfile('bench.json') as text), '$.benchmarks')
      where json_extract(value, '$.run_type') = 'iteration'
        and json_extract(value, '$.error_occurred') is null)
group by 1;

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
       iif(is_command, printf('%.2f', ns / (select ensemble from command)), null) as 'to ensemble',
       iif(ratio is null, null, printf('%.2f', ratio)) as 'to treeview',
       iif(per_element is null, null, printf('%.1f', per_element)) as 'ns an element',
       iif(growth is null, null, printf('%.2f', growth)) as growth,
       iif(mebibytes is null, null, printf('%.1f', mebibytes)) as MiB
from (select *, name not like '%/%' and per_element is null and ratio is null as is_command from run)
order by place;

-- One row a limit: what, the value, the most it may be.
create temp view measured(what, value, bound) as
select 'a command of five words, to a no-op', ns / noop, 3.0 from command
union all
select 'keyword lookup, hit, ns', per_element, 10 from run where name = 'KeywordHit'
union all
select 'keyword lookup, miss, ns', per_element, 10 from run where name = 'KeywordMiss'
union all
select 'names of ' || substr(name, instr(name, '/') + 1) || iif(name like 'Custom%', ' custom', '') ||
       ' sources, growth an element', growth, 1.5
from run where name like '%SourceNames/%' and growth <> 1
union all
select 'items of ' || substr(name, 7) || ' rows, growth an element', growth, 1.5
from run where name like 'Items/%' and growth <> 1
union all
select 'a column''s caption, to a ttk::treeview heading', ratio, 0.8 from run where ratio is not null
union all
select substr(name, 15) || ' folders, growth a folder', growth, 1.5
from run where name like 'CreateFolders/%' and growth <> 1
union all
select 'selecting ' || substr(name, 20) || ' by value, growth an item', growth, 1.5
from run where name like 'SelectTenthByValue/%' and growth <> 1
union all
select 'expanding a list of 1,000,000, s', ns / 1e9, 1 from run where name = 'ExpandList/1000000'
union all
select 'expanding a list of 1,000,000, MiB', mebibytes, 64 from run where name = 'ExpandList/1000000'
union all
select '50 rows from anywhere in 1,000,000, us', ns / 1e3, 300 from run where name = 'Page/1000000'
union all
select '50 rows of 1,000,000, to 50 of 10,000', large.ns / small.ns, 1.5
from run as large, run as small where large.name = 'Page/1000000' and small.name = 'Page/10000'
union all
select 'whether a row can be expanded, us', ns / 50e3, 10 from run where name = 'ExpandersOfPage/1000000'
union all
select 'collecting and isolating 100,000 of 1,000,000, s', ns / 1e9, 1 from run where name = 'CollectAndIsolate/100000'
union all
select 'collecting and isolating 100,000 of 1,000,000, MiB', mebibytes, 16
from run where name = 'CollectAndIsolate/100000'
union all
select 'collecting and isolating 1,000 of 1,000,000, to listing all', step.ns / list.ns, 2
from run as step, run as list where step.name = 'CollectAndIsolate/1000' and list.name = 'ExpandList/1000000'
union all
select 'taking back the isolation of 100,000, s', ns / 1e9, 0.5 from run where name = 'UndoIsolation/100000'
union all
select '50 rows of an isolated view, to 50 of the whole', isolated.ns / whole.ns, 1.2
from run as isolated, run as whole
where isolated.name = 'PageOfIsolated/100000' and whole.name = 'PageOfWhole/100000'
union all
select 'selecting 1,000 to 100,000 rows, growth a decade', sqrt(large.ns / 100 / small.ns), 1.5
from run as large, run as small where large.name = 'SelectRows/100000' and small.name = 'SelectRows/1000';

select what as 'limit', printf('%.2f', value) as measured, printf('%.2f', bound) as 'at most',
       case when value <= bound then 'holds' else 'DOES NOT HOLD' end as verdict
from measured;
