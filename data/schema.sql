-- The tables of OrvantaData.db, in the order in which orvanta-mkdb fills them
-- from tables/<name>.csv. Column types decide how a CSV field is read:
-- INTEGER and REAL fields must hold a number, TEXT fields are taken as they
-- stand, and an empty unquoted field is NULL.
--
-- The tables have no keys and no indexes: the program reads every table with
-- a plain SELECT and relies on getting the rows in the order of insertion,
-- which an index could change.

CREATE TABLE GeneralInfo (
  AtomicNumber  INTEGER NOT NULL,
  Symbol        TEXT    NOT NULL,
  ElementName   TEXT    NOT NULL,
  AtomicWeight  REAL    NOT NULL,
  State         TEXT    NOT NULL,
  Charge        TEXT,
  Configuration TEXT,
  GroupName     TEXT    NOT NULL,
  Density       REAL,
  FreezingPoint REAL,
  BoilingPoint  REAL
);

CREATE TABLE MolecularWeights (
  Substance TEXT NOT NULL,
  Weight    REAL NOT NULL
);

CREATE TABLE Temperatures (
  Compound      TEXT NOT NULL,
  FreezingPoint REAL NOT NULL,
  FPDepression  REAL NOT NULL,
  BoilingPoint  REAL NOT NULL,
  BPElevation   REAL NOT NULL
);

CREATE TABLE Constants (
  Constant TEXT NOT NULL,
  value    REAL NOT NULL
);

CREATE TABLE SpecificHeats (
  Substance    TEXT NOT NULL,
  SpecificHeat REAL NOT NULL
);

CREATE TABLE SolubilityConstants (
  Substance TEXT NOT NULL,
  Ksp       REAL NOT NULL
);

CREATE TABLE IonizationEnergy (
  Substance    TEXT    NOT NULL,
  FIE          REAL    NOT NULL,
  AtomicNumber INTEGER NOT NULL
);

CREATE TABLE ThermodynamicData (
  Substance TEXT NOT NULL,
  Hf        REAL NOT NULL,
  Gf        REAL NOT NULL,
  S         REAL NOT NULL
);

CREATE TABLE VaporPressure (
  Temperature INTEGER NOT NULL,
  Pressure    REAL    NOT NULL
);

CREATE TABLE StandardReductions (
  HalfReaction TEXT NOT NULL,
  Volts        REAL NOT NULL
);

CREATE TABLE Enthalpies (
  Element         TEXT NOT NULL,
  EofFusion       REAL NOT NULL,
  EofVaporization REAL NOT NULL
);

CREATE TABLE Electronegativities (
  Element           TEXT    NOT NULL,
  Electronegativity REAL    NOT NULL,
  AtomicNumber      INTEGER NOT NULL
);

CREATE TABLE AtomicRadii (
  Substance    TEXT    NOT NULL,
  AtomicRadii  REAL    NOT NULL,
  AtomicNumber INTEGER NOT NULL
);

CREATE TABLE Affinities (
  Element      TEXT    NOT NULL,
  Affinity     REAL    NOT NULL,
  AtomicNumber INTEGER NOT NULL
);

CREATE TABLE Bonds (
  Bond   TEXT NOT NULL,
  Energy REAL NOT NULL,
  Length REAL NOT NULL
);

CREATE TABLE Character (
  Difference REAL NOT NULL,
  Ionic      REAL NOT NULL,
  Covalent   REAL NOT NULL
);

CREATE TABLE GasDensity (
  Gas     TEXT NOT NULL,
  Density REAL NOT NULL
);

CREATE TABLE WaterDensity (
  Temperature INTEGER NOT NULL,
  Density     REAL    NOT NULL
);

-- HalfLife is a number in the unit that HalfLifeUnit names.
CREATE TABLE HalfLives (
  Substance    TEXT NOT NULL,
  HalfLife     REAL NOT NULL,
  HalfLifeUnit TEXT NOT NULL,
  DecayMode    TEXT NOT NULL
);
