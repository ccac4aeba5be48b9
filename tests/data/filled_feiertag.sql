-- Rows of the holiday file: holidays to import and postal codes
DELETE FROM tbFeiertage
DELETE FROM tbPLZ

INSERT INTO tbFeiertage (IDFeiertage, FTBezeichnung, FTDatum) VALUES (1, 'Neujahr', #01-01-2026#)
INSERT INTO tbFeiertage (IDFeiertage, FTBezeichnung, FTDatum) VALUES (2, 'Fronleichnam', #06-04-2026#)
INSERT INTO tbFeiertage (IDFeiertage, FTBezeichnung, FTDatum) VALUES (3, 'Allerheiligen', #11-01-2026#)
INSERT INTO tbFeiertage (IDFeiertage, FTBezeichnung, FTDatum) VALUES (4, 'Maria Empfängnis', #12-08-2026#)

INSERT INTO tbPLZ (PLZ, Ort) VALUES ('28195', 'Bremen')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('28196', 'Bremen-Mitte')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('17459', 'Ückeritz')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('17454', 'Zinnowitz')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('17449', 'Peenemünde')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('17448', 'Karlshagen')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('37073', 'Göttingen')
INSERT INTO tbPLZ (PLZ, Ort) VALUES ('01067', 'Dresden')
