-- Reads the results of one run of the benchmarks (bench.json in the working directory) and prints them as
-- two tables: what was measured, beside a command that does nothing, and which limits hold. Of repeated
-- measurements the fastest counts: whatever else the machine did made the others slower.

.mode box
.nullvalue ''

create temp table run as
select name, min(ns) as ns, per_item, ratio, mebibytes
from (select json_extract(value, '$.run_name') as name,
             json_extract(value, '$.real_time') *
                 case json_extract(value, '$.time_unit')
                     when 'ns' then 1 when 'us' then 1e3 when 'ms' then 1e6 else 1e9 end as ns,
             json_extract(value, '$.per_item') * 1e9 as per_item,
             json_extract(value, '$.ratio') as ratio,
             json_extract(value, '$.MiB') as mebibytes
      from json_each(cast(readfile('bench.json') as text), '$.benchmarks')
      where json_extract(value, '$.run_type') = 'iteration'
        and json_extract(value, '$.error_occurred') is null)
group by name;

create temp view noop as select ns from run where name = 'NoOpCommand';

select name as benchmark,
       case when ns < 1e3 then printf('%.1f ns', ns)
            when ns < 1e6 then printf('%.1f us', ns / 1e3)
            when ns < 1e9 then printf('%.1f ms', ns / 1e6)
            else printf('%.2f s', ns / 1e9) end as time,
       printf('%.2f', ns / (select ns from noop)) as 'no-ops',
       case when per_item is not null then printf('%.1f ns', per_item) end as 'per item',
       case when mebibytes is not null then printf('%.1f', mebibytes) end as MiB
from run order by rowid;
