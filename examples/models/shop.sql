-- A bicycle shop: an ordinary database, made for nothing but to be looked at with the default browser.
--
--     product group (nests) -< product -< order line >- order >- customer, employee (nests)

PRAGMA foreign_keys = ON;
BEGIN;

CREATE TABLE "product group" (
    id     INTEGER PRIMARY KEY,
    name   TEXT NOT NULL,
    within INTEGER REFERENCES "product group"
);
CREATE TABLE product (
    id       INTEGER PRIMARY KEY,
    name     TEXT NOT NULL,
    group_id INTEGER NOT NULL REFERENCES "product group",
    price    REAL NOT NULL,
    stock    INTEGER NOT NULL,
    sold     BOOLEAN NOT NULL                 -- still sold
);
CREATE TABLE customer (
    id    INTEGER PRIMARY KEY,
    name  TEXT NOT NULL,
    city  TEXT,
    since DATE,
    trade BOOLEAN NOT NULL                    -- a workshop, not a person
);
CREATE TABLE employee (
    id   INTEGER PRIMARY KEY,
    name TEXT NOT NULL,
    role TEXT NOT NULL,
    boss INTEGER REFERENCES employee
);
CREATE TABLE "order" (
    id          INTEGER PRIMARY KEY,
    number      TEXT NOT NULL UNIQUE,
    customer_id INTEGER NOT NULL REFERENCES customer,
    employee_id INTEGER NOT NULL REFERENCES employee,
    placed      DATE NOT NULL,
    paid        BOOLEAN NOT NULL
);
CREATE TABLE "order line" (
    order_id   INTEGER NOT NULL REFERENCES "order",
    product_id INTEGER NOT NULL REFERENCES product,
    label      TEXT NOT NULL,
    quantity   INTEGER NOT NULL,
    price      REAL NOT NULL,
    PRIMARY KEY (order_id, product_id)
) WITHOUT ROWID;
CREATE INDEX product_by_group ON product (group_id);
CREATE INDEX order_by_customer ON "order" (customer_id);
CREATE INDEX order_by_employee ON "order" (employee_id);
CREATE INDEX line_by_product ON "order line" (product_id);

CREATE VIEW "to be paid" AS
    SELECT "order".number, customer.name AS customer, placed, round(sum(quantity * price), 2) AS price
    FROM "order" JOIN customer ON customer.id = customer_id JOIN "order line" ON order_id = "order".id
    WHERE NOT paid GROUP BY "order".id;

INSERT INTO "product group" VALUES
    (1, 'Bicycles', NULL), (2, 'Parts', NULL), (3, 'City bicycles', 1), (4, 'Touring bicycles', 1), (5, 'Brakes', 2),
    (6, 'Wheels', 2), (7, 'Tyres', 6), (8, 'Rims and hubs', 6), (9, 'Lights', 2);
INSERT INTO product VALUES
    (1, 'Canal 3', 3, 649, 4, 1), (2, 'Canal 7', 3, 799, 2, 1), (3, 'Postman', 3, 1090, 0, 0), (4, 'Ridge', 4, 1490, 3, 1),
    (5, 'Ridge Long', 4, 1690, 1, 1), (6, 'Brake shoe, pair', 5, 8.5, 140, 1), (7, 'Disc brake set', 5, 119, 9, 1),
    (8, 'Brake cable', 5, 4.2, 212, 1), (9, 'Tyre 28 x 1.6', 7, 27.9, 46, 1), (10, 'Tyre 26 x 2.0', 7, 31.5, 18, 1),
    (11, 'Hub dynamo', 8, 84, 6, 1), (12, 'Rim 28"', 8, 39, 22, 1), (13, 'Headlamp 60 lx', 9, 54.9, 15, 1),
    (14, 'Rear lamp', 9, 17.5, 33, 1), (15, 'Bottle dynamo', 9, 12.9, 7, 0);
INSERT INTO customer VALUES
    (1, 'Ana Pires', 'Porto', '2019-03-14', 0), (2, 'Fietswinkel De Brug', 'Delft', '2016-10-02', 1),
    (3, 'Jörg Ziegler', 'Lindau', '2021-06-30', 0), (4, 'Ciclofficina Sud', 'Bari', '2018-01-22', 1),
    (5, 'Maeve O''Dowd', 'Galway', NULL, 0), (6, 'Velo-Hof', 'Graz', '2020-05-11', 1);
INSERT INTO employee VALUES
    (1, 'Ines Castro', 'owner', NULL), (2, 'Tomas Lind', 'workshop', 1), (3, 'Hana Novak', 'sales', 1),
    (4, 'Paul Reuter', 'mechanic', 2), (5, 'Rosa Vidal', 'mechanic', 2), (6, 'Emil Dahl', 'apprentice', 3);

-- Orders and their lines, spread evenly over what there is.
WITH RECURSIVE counter (i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM counter WHERE i < 24)
INSERT INTO "order"
SELECT i, printf('2024-%03d', 100 + i), 1 + i * 5 % 6, 3 + i % 4, date('2024-01-08', (i * 11) || ' days'), i % 7 <> 3
FROM counter;
INSERT INTO "order line"
SELECT "order".id, product.id, product.name, 1 + ("order".id * 3 + product.id) % 4, product.price
FROM "order" JOIN product ON ("order".id * 7 + product.id * 5) % 11 < 3;

COMMIT;
