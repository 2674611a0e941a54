-- The tables of the sample database. SQLite reads the storage of a column out of its type's name: a name with
-- TEXT in it keeps what it is given, where NUMERIC would turn "1234.50" into binary floating point and a
-- telephone number into a number.

CREATE TABLE countries (
    code CHAR(2) NOT NULL PRIMARY KEY CHECK (length(code) = 2),
    name VARCHAR(80) NOT NULL,
    official_name VARCHAR(120),
    common_name VARCHAR(80),
    alpha_3 CHAR(3) NOT NULL UNIQUE,
    numeric_code CHAR(3) NOT NULL UNIQUE
);

CREATE TABLE currencies (
    code CHAR(3) NOT NULL PRIMARY KEY CHECK (length(code) = 3),
    name VARCHAR(80) NOT NULL,
    numeric_code CHAR(3) NOT NULL
);

CREATE TABLE companies (
    id INTEGER PRIMARY KEY,
    name VARCHAR(60) NOT NULL,
    legal_form VARCHAR(12) NOT NULL
        CHECK (legal_form IN ('AG', 'e. K.', 'GbR', 'GmbH', 'KG', 'LLC', 'LLP', 'Ltd', 'plc')),
    country CHAR(2) NOT NULL DEFAULT 'DE' REFERENCES countries (code),
    currency CHAR(3) REFERENCES currencies (code),
    salutation SALUTATION CHECK (salutation BETWEEN 1 AND 3),
    contact VARCHAR(60),
    employees INTEGER NOT NULL CHECK (employees BETWEEN 1 AND 500000),
    share_capital CURRENCY_TEXT CHECK (CAST(share_capital AS NUMERIC) >= 0),
    annual_sales EURO_TEXT CHECK (CAST(annual_sales AS NUMERIC) >= 0),
    owner_share PERCENT NOT NULL DEFAULT 100 CHECK (owner_share BETWEEN 0 AND 100),
    credit_rating REAL CHECK (credit_rating >= -5 AND credit_rating <= 5),
    founded_on DATE NOT NULL CHECK (founded_on BETWEEN '1700-01-01' AND '2099-12-31'),
    opens_at TIME CHECK (opens_at >= '05:00:00'),
    closes_at TIME CHECK (closes_at <= '23:00:00'),
    is_customer BOOLEAN NOT NULL DEFAULT 0 CHECK (is_customer IN (0, 1)),
    newsletter BOOLEAN CHECK (newsletter IN (0, 1)),
    phone PHONE_TEXT,
    mobile MOBILE_TEXT,
    fax FAX_TEXT,
    email EMAIL_TEXT,
    website URL_TEXT,
    portal_password PASSWORD_TEXT,
    brand_colour COLOUR,
    notes TEXT
);

-- Columns named like the properties of a cell override what the declarations above say.
CREATE TABLE data_dictionary (
    table_name TEXT NOT NULL,
    column_name TEXT NOT NULL,
    "Caption" TEXT,
    "Caption_de" TEXT,
    "TooltipText" TEXT,
    "TooltipText_de" TEXT,
    "Group" TEXT,
    "Group_de" TEXT,
    "Alignment" INTEGER CHECK ("Alignment" BETWEEN 0 AND 2),
    "FontBold" BOOLEAN,
    "FontItalic" BOOLEAN,
    "FillColor" INTEGER, -- red in the lowest byte
    "CharCase" INTEGER CHECK ("CharCase" BETWEEN 0 AND 4),
    "Charlist" TEXT,
    "Format" TEXT,
    "Format_de" TEXT,
    "Unit" TEXT,
    "Unit_de" TEXT,
    "Default" TEXT,
    PRIMARY KEY (table_name, column_name)
);
