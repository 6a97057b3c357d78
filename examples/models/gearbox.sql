-- The model database of a six-speed manual gearbox: assemblies down to the single bolt hole.
--
--     sqlite3 gearbox.db < gearbox.sql        (on a new, empty database)
--
-- Units: lengths and positions in mm, masses in kg, densities in kg/m3, Young's modulus in GPa, yield
-- strength in MPa, colours as 0xRRGGBB. The x axis is the axis of the input and output shaft, pointing to
-- the rear; the intermediate shaft lies 82.5 mm below it. NULL means unknown or not applicable.
-- The parts are written down as blueprints (form and dimensions); masses, part numbers and features follow
-- from them, so each run gives the same database.

PRAGMA foreign_keys = ON;
BEGIN;

-- ---------------------------------------------------------------------------------------- what is kept

CREATE TABLE material (
    id             INTEGER PRIMARY KEY,
    name           TEXT NOT NULL UNIQUE,
    density        REAL NOT NULL,
    youngs_modulus REAL,
    yield_strength REAL
);

CREATE TABLE supplier (
    id      INTEGER PRIMARY KEY,
    name    TEXT NOT NULL UNIQUE,
    city    TEXT,
    country TEXT,
    rating  REAL                              -- 0 (worst) to 5; NULL: not audited yet
);

CREATE TABLE assembly (
    id        INTEGER PRIMARY KEY,
    parent_id INTEGER REFERENCES assembly (id),
    name      TEXT NOT NULL,
    code      TEXT NOT NULL UNIQUE,
    remark    TEXT
);
CREATE INDEX assembly_by_parent ON assembly (parent_id);

CREATE TABLE part (
    id          INTEGER PRIMARY KEY,
    assembly_id INTEGER NOT NULL REFERENCES assembly (id),
    material_id INTEGER REFERENCES material (id),
    supplier_id INTEGER REFERENCES supplier (id),
    name        TEXT NOT NULL,
    number      TEXT NOT NULL UNIQUE,
    mass        REAL,                         -- of one piece
    quantity    INTEGER NOT NULL,
    visible     BOOLEAN NOT NULL,
    colour      INTEGER,
    released    BOOLEAN,                      -- NULL: release not decided
    x           REAL,                         -- the middle of the part
    y           REAL,
    z           REAL
);
CREATE INDEX part_by_assembly ON part (assembly_id);
CREATE INDEX part_by_material ON part (material_id);

CREATE TABLE feature (
    id       INTEGER PRIMARY KEY,
    part_id  INTEGER NOT NULL REFERENCES part (id),
    kind     TEXT NOT NULL CHECK (kind IN ('hole', 'bolt', 'face', 'fillet', 'chamfer', 'thread', 'keyway', 'tooth')),
    name     TEXT NOT NULL,
    diameter REAL,                            -- tip diameter of a tooth, width of a chamfer or keyway
    depth    REAL,
    x        REAL,
    y        REAL,
    z        REAL,
    checked  BOOLEAN                          -- measured and found good; NULL: not measured
);
CREATE INDEX feature_by_part ON feature (part_id);

CREATE VIEW heavy_part AS
    SELECT part.id, part.name, part.number, assembly.name AS assembly, mass, quantity, mass * quantity AS total_mass
    FROM part JOIN assembly ON assembly.id = assembly_id
    WHERE mass >= 1.0;

CREATE VIEW part_material AS
    SELECT part.id, part.name, material.name AS material, density, mass,
           round(mass / density * 1e6, 1) AS volume   -- in cm3
    FROM part LEFT JOIN material ON material.id = material_id;

-- ------------------------------------------------------------------------------- materials and suppliers

INSERT INTO material (name, density, youngs_modulus, yield_strength) VALUES
    ('16MnCr5 case-hardened', 7850, 210,   800),
    ('20MnCr5 case-hardened', 7850, 210,   950),
    ('42CrMo4 tempered',      7850, 210,   900),
    ('C45 normalised',        7850, 205,   370),
    ('S235 sheet',            7850, 210,   235),
    ('100Cr6 bearing steel',  7830, 210,  2000),
    ('54SiCr6 spring steel',  7850, 206,  1450),
    ('Steel 8.8',             7850, 205,   640),
    ('Steel 10.9',            7850, 205,   940),
    ('AlSi9Cu3 die cast',     2750,  75,   140),
    ('AlMgSi1 forged',        2700,  70,   310),
    ('GJS-500 ductile iron',  7200, 169,   320),
    ('GJL-250 grey iron',     7200, 110,  NULL),
    ('CuZn40Al2 brass',       8100, 105,   280),
    ('CuSn8 bronze',          8800, 110,   300),
    ('Sintered iron',         6800, 120,   250),
    ('PA66-GF30',             1370, 9.5,   170),
    ('FKM rubber',            1850, 0.008, NULL),
    ('Aramid fibre sheet',    1600, 1.2,   NULL),
    ('PTFE',                  2160, 0.5,    23);

INSERT INTO supplier (name, city, country, rating) VALUES
    ('Hartfels Getriebeteile',    'Zwickau',       'Germany',  4.6),
    ('Müßig Wälzlager',           'Schweinfurt',   'Germany',  4.8),
    ('O''Rourke Castings',        'Cork',          'Ireland',  3.9),
    ('Aciéries de la Brévenne',   'Saint-Étienne', 'France',   4.1),
    ('山波歯車製作所',             '浜松市',         '日本',      4.9),
    ('Fonderia Val d''Olmo',      'Brescia',       'Italy',    4.0),
    ('Sørvik Pakninger',          'Ålesund',       'Norway',   4.4),
    ('Northgate Fasteners',       'Sheffield',     'England',  3.5),
    ('Pružiny Křenek',            'Olomouc',       'Czechia',  4.2),
    ('Lindqvist Pulverteknik',    'Höganäs Norra', 'Sweden',   4.3),
    ('Delta Plast',               NULL,            'Greece',   2.8),
    ('Workshop 7',                'in house',      NULL,       NULL);

-- -------------------------------------------------------------------------------------------- assemblies

-- The code tells the place: GB-HOU-REA lies in GB-HOU.
INSERT INTO assembly (code, name, remark) VALUES
    ('GB',             'Gearbox GX6',             'six forward speeds, one reverse; 380 Nm'),
    ('GB-HOU',         'Housing',                 NULL),
    ('GB-HOU-BEL',     'Clutch bell',             NULL),
    ('GB-HOU-CAS',     'Main case',               'split at x = 0 and x = 310'),
    ('GB-HOU-REA',     'Rear cover',              NULL),
    ('GB-HOU-REA-MNT', 'Gearbox mount',           'rubber bush pressed in'),
    ('GB-INP',         'Input shaft',             NULL),
    ('GB-INP-BRG',     'Input bearing set',       NULL),
    ('GB-INP-REL',     'Clutch release',          NULL),
    ('GB-LAY',         'Intermediate shaft',      'carries all driving gears'),
    ('GB-LAY-BRG',     'Intermediate bearing set', 'preload 0.05 mm'),
    ('GB-LAY-GEA',     'Driving gears',           'shrunk on at 180 °C'),
    ('GB-OUT',         'Output shaft',            NULL),
    ('GB-OUT-BRG',     'Output bearing set',      NULL),
    ('GB-OUT-GEA',     'Gear train',              NULL),
    ('GB-OUT-GEA-1',   '1st speed',               NULL),
    ('GB-OUT-GEA-2',   '2nd speed',               NULL),
    ('GB-OUT-GEA-3',   '3rd speed',               NULL),
    ('GB-OUT-GEA-4',   '4th speed',               NULL),
    ('GB-OUT-GEA-6',   '6th speed',               '5th speed is direct drive'),
    ('GB-OUT-GEA-R',   'Reverse speed',           NULL),
    ('GB-OUT-FLA',     'Drive flange',            NULL),
    ('GB-REV',         'Reverse idler',           NULL),
    ('GB-SYN',         'Synchronisers',           NULL),
    ('GB-SYN-12',      'Synchroniser 1-2',        'triple cone'),
    ('GB-SYN-12-KEY',  'Key set 1-2',             NULL),
    ('GB-SYN-34',      'Synchroniser 3-4',        NULL),
    ('GB-SYN-34-KEY',  'Key set 3-4',             NULL),
    ('GB-SYN-56',      'Synchroniser 5-6',        NULL),
    ('GB-SYN-56-KEY',  'Key set 5-6',             NULL),
    ('GB-SYN-R',       'Synchroniser R',          'the driver''s last resort: "reverse lock"'),
    ('GB-SYN-R-KEY',   'Key set R',               NULL),
    ('GB-SHI',         'Shift mechanism',         NULL),
    ('GB-SHI-RAI',     'Shift rails',             NULL),
    ('GB-SHI-FOR',     'Shift forks',             NULL),
    ('GB-SHI-TOW',     'Selector tower',          NULL),
    ('GB-SHI-TOW-LEV', 'Gear lever',              NULL),
    ('GB-SHI-DET',     'Detents and interlock',   NULL),
    ('GB-LUB',         'Lubrication',             '1.9 l of 75W-80'),
    ('GB-LUB-PMP',     'Oil pump',                NULL),
    ('GB-LUB-PMP-ROT', 'Pump rotor set',          NULL),
    ('GB-LUB-CIR',     'Oil circuit',             NULL),
    ('GB-SEA',         'Sealing',                 NULL),
    ('GB-SEA-ROT',     'Rotary seals',            NULL),
    ('GB-SEA-STA',     'Static seals',            NULL),
    ('GB-SPA',         'Spare positions',         'empty on purpose');

UPDATE assembly SET parent_id = upper.id
FROM assembly AS upper
WHERE upper.code = substr(assembly.code, 1, length(rtrim(assembly.code, '0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ')) - 1);

-- -------------------------------------------------------------------------------------------- blueprints

-- A part as a hollow cylinder of the given form. `count` is what its form repeats: the teeth of a gear,
-- the steps of a shaft, the screw holes of a casting.
CREATE TEMP TABLE blueprint (
    assembly TEXT, form TEXT, name TEXT, material TEXT, supplier TEXT, quantity INTEGER,
    outer_d REAL, bore REAL, length REAL, count INTEGER, x REAL, y REAL, z REAL
);

INSERT INTO blueprint VALUES
    ('GB-HOU-BEL', 'casting', 'Clutch bell housing',        'AlSi9Cu3 die cast', 'O''Rourke Castings', 1, 360, 349, 140, 18, -70, 0, 0),
    ('GB-HOU-BEL', 'ring',    'Guide sleeve',               'C45 normalised', 'Workshop 7', 1, 42, 34, 85, 0, -45, 0, 0),
    ('GB-HOU-BEL', 'bolt',    'Bell bolt M12x45',           'Steel 10.9', 'Northgate Fasteners', 8, 12, 0, 45, 0, -138, 0, 170),
    ('GB-HOU-BEL', 'pin',     'Dowel 12x24',                '100Cr6 bearing steel', 'Northgate Fasteners', 2, 12, 0, 24, 0, -138, 168, 0),
    ('GB-HOU-BEL', 'plate',   'Inspection cover',           'S235 sheet', 'Workshop 7', 1, 95, 0, 1.5, 4, -80, -176, 0),
    ('GB-HOU-BEL', 'bolt',    'Cover screw M6x12',          'Steel 8.8', 'Northgate Fasteners', 4, 6, 0, 12, 0, -80, -178, 30),
    ('GB-HOU-CAS', 'casting', 'Main case',                  'AlSi9Cu3 die cast', 'O''Rourke Castings', 1, 250, 239, 310, 22, 155, 0, -41),
    ('GB-HOU-CAS', 'casting', 'Bearing carrier',            'GJS-500 ductile iron', 'Fonderia Val d''Olmo', 1, 210, 168, 24, 12, 12, 0, -41),
    ('GB-HOU-CAS', 'bolt',    'Carrier bolt M10x30',        'Steel 10.9', 'Northgate Fasteners', 12, 10, 0, 30, 0, 4, 0, 60),
    ('GB-HOU-CAS', 'bolt',    'Case bolt M10x40',           'Steel 8.8', 'Northgate Fasteners', 11, 10, 0, 40, 0, 0, 118, -41),
    ('GB-HOU-CAS', 'pin',     'Dowel 10x20',                '100Cr6 bearing steel', 'Northgate Fasteners', 4, 10, 0, 20, 0, 0, -118, -41),
    ('GB-HOU-CAS', 'plate',   'Name plate "GX6"',           NULL, 'Delta Plast', 1, 60, 0, 0.8, 4, 150, 121, -20),
    ('GB-HOU-CAS', 'casting', 'Breather cap',               'PA66-GF30', 'Delta Plast', 1, 22, 18, 18, 1, 60, 0, 84),
    ('GB-HOU-REA', 'casting', 'Rear cover',                 'AlSi9Cu3 die cast', 'Fonderia Val d''Olmo', 1, 214, 204, 130, 16, 375, 0, -41),
    ('GB-HOU-REA', 'bolt',    'Rear cover bolt M10x35',     'Steel 8.8', 'Northgate Fasteners', 16, 10, 0, 35, 0, 312, 0, 60),
    ('GB-HOU-REA', 'plate',   'Bearing retainer plate',     'S235 sheet', 'Workshop 7', 1, 118, 66, 6, 6, 349, 0, 0),
    ('GB-HOU-REA', 'bolt',    'Retainer screw M8x20',       'Steel 10.9', 'Northgate Fasteners', 6, 8, 0, 20, 0, 353, 0, 46),
    ('GB-HOU-REA-MNT', 'casting', 'Mount bracket',          'AlMgSi1 forged', 'Aciéries de la Brévenne', 1, 120, 92, 48, 4, 400, 0, -150),
    ('GB-HOU-REA-MNT', 'ring', 'Mount bush',                'FKM rubber', 'Sørvik Pakninger', 2, 46, 16, 40, 0, 400, 0, -168),
    ('GB-HOU-REA-MNT', 'bolt', 'Mount bolt M12x70',         'Steel 8.8', 'Northgate Fasteners', 4, 12, 0, 70, 0, 400, 34, -140),
    ('GB-INP',     'shaft',   'Input shaft body',           '20MnCr5 case-hardened', 'Hartfels Getriebeteile', 1, 34, 8, 262, 7, -90, 0, 0),
    ('GB-INP',     'gear',    'Constant gear, input',       '20MnCr5 case-hardened', '山波歯車製作所', 1, 67.5, 34, 27, 25, 28, 0, 0),
    ('GB-INP',     'toothed', 'Clutch ring, direct drive',  '16MnCr5 case-hardened', '山波歯車製作所', 1, 78, 52, 7, 45, 46, 0, 0),
    ('GB-INP-BRG', 'bearing', 'Ball bearing 6307 N',        '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 80, 35, 21, 0, 4, 0, 0),
    ('GB-INP-BRG', 'bearing', 'Pilot needle bearing',       '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 28, 20, 26, 0, 52, 0, 0),
    ('GB-INP-BRG', 'ring',    'Snap ring 35',               '54SiCr6 spring steel', 'Pružiny Křenek', 1, 41, 35, 1.75, 0, -7, 0, 0),
    ('GB-INP-BRG', 'ring',    'Shim 0.2',                   'S235 sheet', 'Workshop 7', 2, 79, 68, 0.2, 0, 16, 0, 0),
    ('GB-INP-REL', 'casting', 'Release lever',              'AlMgSi1 forged', 'Aciéries de la Brévenne', 1, 58, 46, 165, 2, -75, 60, 0),
    ('GB-INP-REL', 'bearing', 'Release bearing',            '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 66, 43, 22, 0, -95, 0, 0),
    ('GB-INP-REL', 'pin',     'Lever ball pin',             'C45 normalised', 'Workshop 7', 1, 16, 0, 38, 0, -70, -92, 0),
    ('GB-INP-REL', 'ring',    'Lever boot',                 'FKM rubber', 'Sørvik Pakninger', 1, 52, 46, 34, 0, -75, 150, 0),
    ('GB-LAY',     'shaft',   'Intermediate shaft body',    '20MnCr5 case-hardened', 'Hartfels Getriebeteile', 1, 30, 10, 305, 9, 160, 0, -82.5),
    ('GB-LAY-GEA', 'gear',    'Constant gear, driven',      '20MnCr5 case-hardened', '山波歯車製作所', 1, 107.5, 30, 26, 41, 28, 0, -82.5),
    ('GB-LAY-BRG', 'bearing', 'Taper roller bearing 32207', '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 72, 35, 24.25, 0, 4, 0, -82.5),
    ('GB-LAY-BRG', 'bearing', 'Taper roller bearing 32206', '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 62, 30, 21.25, 0, 314, 0, -82.5),
    ('GB-LAY-BRG', 'ring',    'Preload shim 1.15',          'S235 sheet', 'Workshop 7', 1, 61, 50, 1.15, 0, 326, 0, -82.5),
    ('GB-LAY-BRG', 'ring',    'Oil retaining disc',         'PA66-GF30', 'Delta Plast', 1, 70, 24, 3, 0, -9, 0, -82.5),
    ('GB-OUT',     'shaft',   'Output shaft body',          '42CrMo4 tempered', 'Aciéries de la Brévenne', 1, 36, 9, 372, 11, 246, 0, 0),
    ('GB-OUT',     'pin',     'Key 8x7x32',                 'C45 normalised', 'Northgate Fasteners', 1, 8, 0, 32, 0, 360, 0, 22),
    ('GB-OUT',     'ring',    'Speedometer wheel',          'PA66-GF30', 'Delta Plast', 1, 56, 40, 14, 0, 362, 0, 0),
    ('GB-OUT-BRG', 'bearing', 'Ball bearing 6308',          '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 90, 40, 23, 0, 334, 0, 0),
    ('GB-OUT-BRG', 'bearing', 'Roller bearing NU 207',      '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 72, 35, 17, 0, 405, 0, 0),
    ('GB-OUT-BRG', 'ring',    'Snap ring 40',               '54SiCr6 spring steel', 'Pružiny Křenek', 2, 47, 40, 1.75, 0, 347, 0, 0),
    ('GB-OUT-FLA', 'casting', 'Drive flange body',          'C45 normalised', 'Hartfels Getriebeteile', 1, 110, 84, 30, 6, 432, 0, 0),
    ('GB-OUT-FLA', 'bolt',    'Flange nut M24x1.5',         'Steel 8.8', 'Northgate Fasteners', 1, 24, 0, 14, 0, 446, 0, 0),
    ('GB-OUT-FLA', 'bolt',    'Shaft bolt M10x38',          'Steel 10.9', 'Northgate Fasteners', 6, 10, 0, 38, 0, 440, 0, 43),
    ('GB-REV',     'gear',    'Reverse idler gear',         '16MnCr5 case-hardened', '山波歯車製作所', 1, 59, 26, 22, 22, 290, 46.2, -71.4),
    ('GB-REV',     'shaft',   'Idler axle',                 'C45 normalised', 'Workshop 7', 1, 20, 0, 74, 2, 290, 46.2, -71.4),
    ('GB-REV',     'bearing', 'Idler needle cage',          '100Cr6 bearing steel', 'Müßig Wälzlager', 2, 26, 20, 20, 0, 290, 46.2, -71.4),
    ('GB-REV',     'bolt',    'Axle lock bolt M8x25',       'Steel 8.8', 'Northgate Fasteners', 1, 8, 0, 25, 0, 320, 55, -71.4),
    ('GB-SHI-TOW', 'casting', 'Selector housing',           'AlSi9Cu3 die cast', 'Fonderia Val d''Olmo', 1, 96, 87, 74, 6, 200, 0, 105),
    ('GB-SHI-TOW', 'shaft',   'Selector shaft',             'C45 normalised', 'Hartfels Getriebeteile', 1, 16, 0, 128, 4, 200, 0, 105),
    ('GB-SHI-TOW', 'casting', 'Selector finger',            'Sintered iron', 'Lindqvist Pulverteknik', 1, 34, 16, 18, 1, 200, 0, 80),
    ('GB-SHI-TOW', 'spring',  'Gate return spring',         '54SiCr6 spring steel', 'Pružiny Křenek', 2, 24, 19, 42, 0, 200, 30, 105),
    ('GB-SHI-TOW', 'ring',    'Selector bush',              'CuSn8 bronze', 'Lindqvist Pulverteknik', 2, 20, 16, 22, 0, 200, -40, 105),
    ('GB-SHI-TOW', 'bolt',    'Tower bolt M8x28',           'Steel 8.8', 'Northgate Fasteners', 6, 8, 0, 28, 0, 200, 44, 72),
    ('GB-SHI-TOW', 'plate',   'Reverse lock plate',         'S235 sheet', 'Workshop 7', 1, 48, 17, 4, 2, 212, 0, 96),
    ('GB-SHI-TOW', 'casting', 'Reverse light switch',       NULL, 'Delta Plast', 1, 22, 12, 44, 1, 230, 50, 90),
    ('GB-SHI-TOW-LEV', 'shaft', 'Lever rod',                'C45 normalised', 'Workshop 7', 1, 12, 0, 260, 3, 190, 0, 260),
    ('GB-SHI-TOW-LEV', 'ring', 'Lever ball socket',         'PA66-GF30', 'Delta Plast', 1, 38, 26, 24, 0, 190, 0, 140),
    ('GB-SHI-TOW-LEV', 'ring', 'Knob, leather',             NULL, NULL, 1, 48, 10, 60, 0, 190, 0, 410),
    ('GB-SHI-DET', 'bolt',    'Detent plug M14',            'Steel 8.8', 'Northgate Fasteners', 4, 14, 0, 12, 0, 30, 0, 82),
    ('GB-SHI-DET', 'pin',     'Interlock plunger',          '100Cr6 bearing steel', 'Workshop 7', 3, 9, 0, 17, 0, 30, 0, 64),
    ('GB-LUB',     'plate',   'Oil level label',            NULL, 'Delta Plast', 1, 40, 0, 0.1, 0, 120, 121, -90),
    ('GB-LUB-PMP', 'casting', 'Pump body',                  'GJL-250 grey iron', 'Fonderia Val d''Olmo', 1, 82, 62, 28, 5, 346, 0, -82.5),
    ('GB-LUB-PMP', 'plate',   'Pump cover',                 'AlMgSi1 forged', 'Workshop 7', 1, 82, 0, 8, 5, 364, 0, -82.5),
    ('GB-LUB-PMP', 'bolt',    'Pump screw M6x30',           'Steel 8.8', 'Northgate Fasteners', 5, 6, 0, 30, 0, 366, 0, -48),
    ('GB-LUB-PMP', 'spring',  'Relief spring',              '54SiCr6 spring steel', 'Pružiny Křenek', 1, 11, 8, 38, 0, 350, 34, -82.5),
    ('GB-LUB-PMP', 'pin',     'Relief piston',              'C45 normalised', 'Workshop 7', 1, 12, 6, 26, 0, 350, 30, -82.5),
    ('GB-LUB-PMP-ROT', 'toothed', 'Inner rotor',            'Sintered iron', 'Lindqvist Pulverteknik', 1, 44, 16, 16, 8, 346, 2, -82.5),
    ('GB-LUB-PMP-ROT', 'toothed', 'Outer rotor',            'Sintered iron', 'Lindqvist Pulverteknik', 1, 60, 48, 16, 9, 346, -2, -82.5),
    ('GB-LUB-CIR', 'plate',   'Oil trough',                 'PA66-GF30', 'Delta Plast', 1, 130, 0, 2, 6, 150, 90, 20),
    ('GB-LUB-CIR', 'ring',    'Suction pipe',               'S235 sheet', 'Workshop 7', 1, 16, 13, 190, 0, 260, 0, -140),
    ('GB-LUB-CIR', 'plate',   'Suction strainer',           'S235 sheet', 'Delta Plast', 1, 70, 14, 6, 2, 165, 0, -150),
    ('GB-LUB-CIR', 'ring',    'Collecting magnet',          NULL, 'Northgate Fasteners', 1, 24, 8, 8, 0, 180, 0, -158),
    ('GB-LUB-CIR', 'bolt',    'Filler plug 3/4"',           'Steel 8.8', 'Northgate Fasteners', 1, 26.4, 0, 16, 0, 130, 120, -80),
    ('GB-LUB-CIR', 'bolt',    'Drain plug 3/4" with magnet', 'Steel 8.8', 'Northgate Fasteners', 1, 26.4, 0, 16, 0, 140, 0, -165),
    ('GB-LUB-CIR', 'pin',     'Oil nozzle Ø 1.2',           'CuZn40Al2 brass', 'Lindqvist Pulverteknik', 6, 7, 1.2, 14, 0, 120, 40, -30),
    ('GB-SEA-ROT', 'seal',    'Input shaft seal 34x52x8',   'FKM rubber', 'Sørvik Pakninger', 1, 52, 34, 8, 0, -12, 0, 0),
    ('GB-SEA-ROT', 'seal',    'Output shaft seal 48x68x10', 'FKM rubber', 'Sørvik Pakninger', 1, 68, 48, 10, 0, 422, 0, 0),
    ('GB-SEA-ROT', 'seal',    'Selector shaft seal 16x24x7', 'FKM rubber', 'Sørvik Pakninger', 2, 24, 16, 7, 0, 200, -52, 105),
    ('GB-SEA-ROT', 'seal',    'Piston ring, pump drive',    'PTFE', 'Sørvik Pakninger', 2, 30, 26, 2.5, 0, 334, 0, -82.5),
    ('GB-SEA-STA', 'seal',    'Bell gasket',                'Aramid fibre sheet', 'Sørvik Pakninger', 1, 246, 230, 0.5, 0, 0, 0, -41),
    ('GB-SEA-STA', 'seal',    'Rear cover gasket',          'Aramid fibre sheet', 'Sørvik Pakninger', 1, 212, 198, 0.5, 0, 310, 0, -41),
    ('GB-SEA-STA', 'seal',    'Tower gasket',               'Aramid fibre sheet', 'Sørvik Pakninger', 1, 94, 78, 0.5, 0, 200, 0, 68),
    ('GB-SEA-STA', 'seal',    'O-ring 62x3',                'FKM rubber', 'Sørvik Pakninger', 2, 68, 62, 3, 0, 332, 0, -82.5),
    ('GB-SEA-STA', 'seal',    'Sealing washer 27',          'AlMgSi1 forged', 'Northgate Fasteners', 2, 32, 27, 2, 0, 140, 0, -160),
    ('GB-SEA-STA', 'seal',    'Flange sealant, 80 ml',      NULL, 'Sørvik Pakninger', 1, NULL, NULL, NULL, 0, NULL, NULL, NULL);

-- Each speed but the direct 5th is a pair of gears of module 2.5: a driving one, fixed on the intermediate
-- shaft, and a driven one, loose on the output shaft until its clutch ring is caught.
WITH speed (code, driving, driven, x, ring) AS (
    VALUES ('1', 17, 49, 262, -14), ('2', 24, 42, 208, 14), ('3', 31, 35, 162, -13), ('4', 37, 29, 112, 13),
           ('6', 44, 22, 88, -13), ('R', 16, 46, 288, 13))
INSERT INTO blueprint
SELECT 'GB-LAY-GEA', 'gear', 'Driving gear ' || code, '20MnCr5 case-hardened', 'Hartfels Getriebeteile', 1,
    2.5 * (driving + 2), 30, 22, driving, x, 0, -82.5 FROM speed
UNION ALL
SELECT 'GB-OUT-GEA-' || code, 'gear', 'Driven gear ' || code, '20MnCr5 case-hardened', '山波歯車製作所', 1,
    2.5 * (driven + 2), 42, 22, driven, x, 0, 0 FROM speed
UNION ALL
SELECT 'GB-OUT-GEA-' || code, 'toothed', 'Clutch ring ' || code, '16MnCr5 case-hardened', '山波歯車製作所', 1,
    78, 52, 7, 45, x + ring, 0, 0 FROM speed
UNION ALL
SELECT 'GB-OUT-GEA-' || code, part.form, part.name || ' ' || code, part.material, part.supplier, 1,
    part.outer_d, part.bore, part.length, 0, x + part.shift, 0, 0
FROM speed, (
    SELECT 'bearing' AS form, 'Needle cage' AS name, '100Cr6 bearing steel' AS material, 'Müßig Wälzlager' AS supplier,
        42 AS outer_d, 36 AS bore, 20 AS length, 0 AS shift
    UNION ALL SELECT 'ring', 'Bearing sleeve', '100Cr6 bearing steel', 'Müßig Wälzlager', 36, 31, 21, 0
    UNION ALL SELECT 'ring', 'Thrust washer', 'CuSn8 bronze', 'Lindqvist Pulverteknik', 52, 36, 3, -12.5
    UNION ALL SELECT 'ring', 'Retaining ring', '54SiCr6 spring steel', 'Pružiny Křenek', 40, 35, 2, -15) AS part;

-- Each synchroniser with the fork and the rail that move it.
WITH gate (code, x, angle) AS (VALUES ('12', 235, -24), ('34', 137, 0), ('56', 62, 24), ('R', 310, 48))
INSERT INTO blueprint
SELECT replace(part.assembly, '*', code), part.form,
    part.name || ' ' || CASE code WHEN 'R' THEN 'R' ELSE substr(code, 1, 1) || '-' || substr(code, 2) END,
    part.material, part.supplier, part.quantity, part.outer_d, part.bore, part.length, part.count,
    x + part.shift, part.arm * sin(radians(angle)), part.arm * cos(radians(angle))
FROM gate, (
    SELECT 'GB-SYN-*' AS assembly, 'toothed' AS form, 'Synchroniser hub' AS name, 'Sintered iron' AS material,
        'Lindqvist Pulverteknik' AS supplier, 1 AS quantity, 76 AS outer_d, 34 AS bore, 18 AS length, 42 AS count,
        0 AS shift, 0 AS arm
    UNION ALL SELECT 'GB-SYN-*', 'toothed', 'Shift sleeve', '16MnCr5 case-hardened', 'Hartfels Getriebeteile', 1, 98, 79, 24, 42, 0, 0
    UNION ALL SELECT 'GB-SYN-*', 'toothed', 'Blocker ring front', 'CuZn40Al2 brass', 'Aciéries de la Brévenne', 1, 79, 66, 9, 36, -10, 0
    UNION ALL SELECT 'GB-SYN-*', 'toothed', 'Blocker ring rear', 'CuZn40Al2 brass', 'Aciéries de la Brévenne', 1, 79, 66, 9, 36, 10, 0
    UNION ALL SELECT 'GB-SYN-*', 'ring', 'Friction cone', 'S235 sheet', 'Lindqvist Pulverteknik', 2, 66, 62, 10, 0, 9, 0
    UNION ALL SELECT 'GB-SYN-*-KEY', 'pin', 'Sliding key', 'Sintered iron', 'Lindqvist Pulverteknik', 3, 7, 0, 16, 0, 0, 36
    UNION ALL SELECT 'GB-SYN-*-KEY', 'spring', 'Key spring', '54SiCr6 spring steel', 'Pružiny Křenek', 3, 5, 3.8, 12, 0, 0, 33
    UNION ALL SELECT 'GB-SYN-*-KEY', 'pin', 'Key ball', '100Cr6 bearing steel', 'Müßig Wälzlager', 3, 5, 0, 3.3, 0, 0, 38
    UNION ALL SELECT 'GB-SHI-FOR', 'casting', 'Shift fork', 'AlMgSi1 forged', 'Aciéries de la Brévenne', 1, 112, 99, 12, 2, 0, 30
    UNION ALL SELECT 'GB-SHI-FOR', 'pin', 'Fork pad', 'PA66-GF30', 'Delta Plast', 2, 14, 0, 6, 0, 0, 50
    UNION ALL SELECT 'GB-SHI-FOR', 'pin', 'Fork roll pin', '54SiCr6 spring steel', 'Northgate Fasteners', 1, 6, 3, 26, 0, 0, 80
    UNION ALL SELECT 'GB-SHI-RAI', 'shaft', 'Shift rail', 'C45 normalised', 'Hartfels Getriebeteile', 1, 15, 0, 290, 3, -20, 80
    UNION ALL SELECT 'GB-SHI-RAI', 'ring', 'Rail bush', 'CuSn8 bronze', 'Lindqvist Pulverteknik', 2, 19, 15, 20, 0, -90, 80
    UNION ALL SELECT 'GB-SHI-DET', 'pin', 'Detent ball', '100Cr6 bearing steel', 'Müßig Wälzlager', 1, 10, 0, 6.7, 0, -100, 89
    UNION ALL SELECT 'GB-SHI-DET', 'spring', 'Detent spring', '54SiCr6 spring steel', 'Pružiny Křenek', 1, 9, 6.6, 24, 0, -100, 102) AS part;

-- ------------------------------------------------------------------------------------ parts and features

-- What a form looks like: its colour, and whether it can be seen from outside the box it sits in.
CREATE TEMP TABLE form (name TEXT PRIMARY KEY, colour INTEGER, visible BOOLEAN);
INSERT INTO form VALUES
    ('casting', 0xB8BCC0, 1), ('shaft', 0x7A8088, 1), ('gear', 0xC9A227, 1), ('toothed', 0xA8803A, 1), ('bearing', 0x4F6D8F, 1),
    ('ring', 0x8FA3AD, 1), ('bolt', 0x303438, 1), ('pin', 0x565C62, 0), ('plate', 0x9AA57C, 1), ('spring', 0x3E7B4F, 0), ('seal', NULL, 0);

INSERT INTO part (id, assembly_id, material_id, supplier_id, name, number, mass, quantity, visible, colour, released, x, y, z)
SELECT blueprint.rowid, assembly.id, material.id, supplier.id, blueprint.name,
    printf('%s-%03d', replace(substr(assembly.code, 4), '-', '.'), blueprint.rowid),
    round(density * pi() / 4 * (outer_d * outer_d - bore * bore) * length * 1e-9, 4), quantity,
    form.visible, form.colour, CASE WHEN material.id IS NULL THEN NULL ELSE blueprint.rowid % 11 <> 4 END,
    round(x, 2), round(y, 2), round(z, 2)
FROM blueprint
JOIN assembly ON assembly.code = blueprint.assembly
JOIN form ON form.name = form
LEFT JOIN material ON material.name = blueprint.material
LEFT JOIN supplier ON supplier.name = blueprint.supplier;

-- The features of a form: how many there are (a fixed number, and so many for each of what it repeats), their
-- diameter and depth (in mm, and as a share of the part), and where they lie: evenly around the axis, at a
-- share of the outer radius, and along the axis at a share of half the length.
CREATE TEMP TABLE rule (
    form TEXT, kind TEXT, fixed INTEGER, each INTEGER, diameter REAL, of_outer REAL, of_bore REAL,
    depth REAL, of_length REAL, radius REAL, along REAL
);
INSERT INTO rule VALUES
    ('gear',    'tooth',   0, 1, 0,    1,    0, 5.6,  0,   0.97,  0), ('gear',    'fillet',  0, 2, 0.9, 0,    0, 0,    0,   0.9,   0),
    ('gear',    'chamfer', 0, 2, 0.5,  0,    0, 0.5,  0,   1,     1), ('gear',    'face',    2, 0, 0,   0.9,  0, 0,    0,   0,     1),
    ('gear',    'hole',    1, 0, 0,    0,    1, 0,    1,   0,     0), ('gear',    'keyway',  1, 0, 8,   0,    0, 3.3,  0,   0.4,   0),
    ('toothed', 'tooth',   0, 1, 0,    1,    0, 2.2,  0,   0.97,  0), ('toothed', 'chamfer', 0, 1, 0.8, 0,    0, 0.8,  0,   0.97,  1),
    ('toothed', 'face',    2, 0, 0,    0.9,  0, 0,    0,   0,     1), ('toothed', 'hole',    1, 0, 0,   0,    1, 0,    1,   0,     0),
    ('toothed', 'fillet',  2, 0, 0.6,  0,    0, 0,    0,   0.9,   1), ('shaft',   'face',    2, 1, 0,   0.9,  0, 0,    0,   0,     1),
    ('shaft',   'fillet',  0, 1, 1.6,  0,    0, 0,    0,   0.9,   0.6), ('shaft', 'chamfer', 2, 1, 1,   0,    0, 1,    0,   1,     0.9),
    ('shaft',   'hole',    2, 0, 3.15, 0,    0, 8,    0,   0,     1), ('shaft',   'keyway',  1, 0, 0,   0.25, 0, 4,    0,   1,     0.4),
    ('shaft',   'tooth',   0, 4, 0,    0.8,  0, 2,    0,   0.9,   0.8), ('casting', 'hole',  1, 1, 8.5, 0,    0, 24,   0,   0.94,  1),
    ('casting', 'thread',  0, 1, 10,   0,    0, 20,   0,   0.94,  1), ('casting', 'chamfer', 0, 1, 1,   0,    0, 1,    0,   0.94,  1),
    ('casting', 'bolt',    0, 1, 10,   0,    0, 0,    0.1, 0.94,  1), ('casting', 'face',    4, 0, 0,   0.95, 0, 0,    0,   0,     1),
    ('casting', 'fillet',  8, 2, 5,    0,    0, 0,    0,   0.9,  -0.5), ('plate', 'face',    2, 0, 0,   1,    0, 0,    0,   0,     1),
    ('plate',   'hole',    0, 1, 6.6,  0,    0, 0,    1,   0.85,  0), ('plate',   'chamfer', 0, 1, 0.3, 0,    0, 0.3,  0,   0.85,  1),
    ('bearing', 'face',    4, 0, 0,    1,    0, 0,    0,   0,     1), ('bearing', 'hole',    1, 0, 0,   0,    1, 0,    1,   0,     0),
    ('bearing', 'fillet',  4, 0, 1.1,  0,    0, 0,    0,   1,     1), ('ring',    'face',    2, 0, 0,   1,    0, 0,    0,   0,     1),
    ('ring',    'hole',    1, 0, 0,    0,    1, 0,    1,   0,     0), ('ring',    'chamfer', 4, 0, 0.5, 0,    0, 0.5,  0,   1,     1),
    ('bolt',    'bolt',    1, 0, 0,    1,    0, 0,    1,   0,     0), ('bolt',    'thread',  1, 0, 0,   1,    0, 0,    0.8, 0,    -0.2),
    ('bolt',    'face',    1, 0, 0,    1.6,  0, 0,    0,   0,     1), ('bolt',    'chamfer', 2, 0, 0,   0.1,  0, 0.8,  0,   0.9,   1),
    ('pin',     'face',    2, 0, 0,    1,    0, 0,    0,   0,     1), ('pin',     'chamfer', 2, 0, 0.4, 0,    0, 0.4,  0,   1,     1),
    ('spring',  'face',    2, 0, 0,    1,    0, 0,    0,   0,     1), ('seal',    'face',    2, 0, 0,   1,    0, 0,    0,   0,     1),
    ('seal',    'fillet',  1, 0, 0.4,  0,    0, 0,    0,   1,     0);

-- What lies on the axis in a number of two or more alternates between the two ends of the part.
WITH RECURSIVE counter (i) AS (VALUES (0) UNION ALL SELECT i + 1 FROM counter WHERE i < 127)
INSERT INTO feature (part_id, kind, name, diameter, depth, x, y, z, checked)
SELECT part.id, kind, kind || ' ' || (i + 1),
    nullif(round(diameter + of_outer * outer_d + of_bore * bore, 2), 0),
    nullif(round(depth + of_length * length, 2), 0),
    round(part.x + along * length / 2 * (1 - 2 * (i % 2)), 2),
    round(part.y + radius * outer_d / 2 * cos(2 * pi() * i / (fixed + each * count)), 2),
    round(part.z + radius * outer_d / 2 * sin(2 * pi() * i / (fixed + each * count)), 2),
    CASE WHEN released THEN (part.id * 31 + i * 7) % 23 <> 5 END
FROM blueprint
JOIN part ON part.id = blueprint.rowid
JOIN rule ON rule.form = blueprint.form
JOIN counter ON i < fixed + each * count
ORDER BY part.id, rule.rowid, i;

DROP TABLE rule;
DROP TABLE form;
DROP TABLE blueprint;
COMMIT;
