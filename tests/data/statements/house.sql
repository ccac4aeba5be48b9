SELECT tblBelegung.ID, tblBelegung.Zimmernummer, tbZimmernummern.NeueNummer FROM tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = tbZimmernummern.Zimmernummer;
UPDATE tblBelegung SET Checked = false WHERE (((Checked)=true) AND ((Bis)<CDate('15.06.2026')))
UPDATE tblBelegung SET tblBelegung.Re_text = '15.06.2026'
SELECT SATZ, F1 from tblParameter WHERE Satz = '5';
UPDATE tblBelegung SET tblBelegung.Wäsche1 = 6, tblBelegung.Wäsche2 = 3, tblBelegung.Frühstück = True;
SELECT tblParameter.Satz, tblParameter.F1   From tblParameter WHERE (((tblParameter.Satz)='Währung'));
SELECT tbZimmernummern.Zimmernummer,tbZimmernummern.Raucher,  tbZimmernummern.NeueNummer, tbZimmernummern.Bemerkungen, tbZusätze.Farbe AS Z1Farbe, tbZusätze.Beschriftung AS Z1Beschriftung, tbZusätze.Bedeutung AS Z1Bedeutung, tbZusätze_1.Farbe AS Z2Farbe, tbZusätze_1.Beschriftung AS Z2Beschriftung, tbZusätze_1.Bedeutung AS Z2Bedeutung, AnzahlGästeDefault FROM (tbZimmernummern LEFT JOIN tbZusätze ON tbZimmernummern.Zusatz1 = tbZusätze.ZusatzFeld) LEFT JOIN tbZusätze AS tbZusätze_1 ON tbZimmernummern.Zusatz2 = tbZusätze_1.ZusatzFeld order by tbZimmernummern.Zimmernummer;
select * from tbzimmernummern order by zimmernummer ;
SELECT tbBelegArten.BelegungsID, tbBelegArten.BelegungsArt, tblBelegung.ID, tblBelegung.Zimmernummer, tblBelegung.Von, tblBelegung.Bis, tblBelegung.GastID, tblBelegung.Info, tblBelegung.Kürzel, tblBelegung.Preis, tblBelegung.PreisProNacht, tblBelegung.AnzahlÜbernachtungen, tblBelegung.AnzahlGäste, tblBelegung.Anz_Kinder, tblBelegung.Gelöscht, tblBelegung.Checked, tblBelegung.WerErstellt, tblBelegung.WannErstellt, tblBelegung.WerGeändert, tblBelegung.WannGeändert, tblBelegung.Abgerechnet, tblBelegung.IDAdressRechnung, tblBelegung.Wäsche1, tblBelegung.Wäsche2, tblBelegung.Frühstück, tblBelegung.Zahlart, tblBelegung.Mittag, tblBelegung.Abendessen, tblBelegung.Alter_Kinder, tblBelegung.BelegNummer, tblBelegung.BelegNummer_eigen, tbZimmernummern.NeueNummer,Address.Firstname,Address.Lastname, tblBelegung.AnzahlGäste, tblBelegung.Anz_Kinder, [tbZimmernummern].[AnzahlGästeDefault]-[tblBelegung].[AnzahlGäste] AS Diff FROM ((tblBelegung INNER JOIN tbZimmernummern ON tblBelegung.Zimmernummer = tbZimmernummern.Zimmernummer) INNER JOIN Address ON tblBelegung.GastID = Address.ID) INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = tbBelegArten.BelegungsID WHERE (((tblBelegung.Von)<=#06-15-2026#) AND ((tblBelegung.Bis)>=#06-15-2026#));
SELECT tbFeiertage.FTBezeichnung, tbFeiertage.FTDatum From tbFeiertage  WHERE (((tbFeiertage.FTDatum)>=#06-15-2026# And (tbFeiertage.FTDatum)<=#06-15-2026# ));
SELECT ID, BelegNummer_eigen,Von, Bis, Kürzel, GastID, Checked, AnzahlGäste ,tblBelegung.Anz_Kinder FROM tblBelegung WHERE Zimmernummer = 5 AND Gelöscht = FALSE  AND DATEDIFF('d',Von, '5')>=0 AND DATEDIFF('d',Bis, '5') < 0;
SELECT ID, BelegNummer_eigen, Von, Kürzel, Checked FROM tblBelegung WHERE Gelöscht = TRUE
SELECT Address.FirstName, Address.LastName, Address.City From Address WHERE (((Address.ID)= 5))
SELECT tblBelegung.ID, tblBelegung.WannErstellt, Wäsche1, Zahlart, tblBelegung.WerErstellt, tblBelegung.Wergeändert, Wäsche2, Frühstück,AnzahlÜbernachtungen, AnzahlGäste, tblBelegung.Anz_Kinder, Gelöscht, Zimmernummer, Von, Bis, GastID, Kürzel, Info, Belegungsart, Preis, PreisProNacht, LastName, FirstName, Address, City, Phone, [Tele-Fax], PostalCode, tblBelegung.Checked, tblBelegung.Mittag, tblBelegung.Abendessen, tblBelegung.Alter_Kinder, tblBelegung.BelegNummer, tblBelegung.BelegNummer_eigen , tblBelegung.IDAdressRechnung FROM tblBelegung INNER JOIN Address ON tblBelegung.GastID = Address.ID WHERE (Gelöscht = false and tblBelegung.ID = 5)
SELECT tblBelegung.ID, tblBelegung.Gelöscht, Format([tbBelegArten].[BelegungsArt],'<') AS Ausdr1 FROM tblBelegung INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = tbBelegArten.BelegungsID WHERE (((tblBelegung.ID)= 5))
UPDATE tblBelegung SET tblBelegung.Checked = true WHERE (((tblBelegung.ID)= 5));
SELECT tblBelegung.ID, tblBelegung.Von, DateDiff('d',Now(),[Von]) AS VonDIFF, tblBelegung.Zimmernummer, DateDiff('d',Now(),[Bis]) AS BisDIFF, tblBelegung.Von, tblBelegung.Bis From tblBelegung WHERE (((DateDiff('d',Now(),[Von]))>=-2 And (DateDiff('d',Now(),[Von]))<=2) AND ((tblBelegung.Zimmernummer)=5)) OR (((DateDiff('d',Now(),[Bis]))>=-2 And (DateDiff('d',Now(),[Bis]))<=2) AND ((tblBelegung.Zimmernummer)=5)) OR (((tblBelegung.Zimmernummer)=5) AND ((tblBelegung.Von)<= Now()) AND ((tblBelegung.Bis)>= Now()))order by tblBelegung.Von;
SELECT Address.ID, address.LastName, (address.LastName & ', ' & address.Firstname  & ', ' & address.PostalCode & ' ' & address.city) as sName   FROM Address ORDER BY Address.LastName;
SELECT tblBelegung.*, tblBelegung.Kürzel From tblBelegung WHERE (((tblBelegung.Kürzel)= '5' ));
SELECT * FROM tblBelegung WHERE Kürzel = '5'
SELECT  tblBelegung.Bis, tblBelegung.GastID, tblBelegung.IDAdressRechnung From tblBelegung  Where (((tblBelegung.Bis) < Date()))
SELECT * FROM tblBelegung WHERE ID = 5
DELETE tblBelegung.ID From tblBelegung  WHERE (((tblBelegung.ID)=5));
DELETE * FROM tblBelegung WHERE ID = 5
DELETE tbRePosten.*, tbRePosten.IDBelegung  From tbRePosten  WHERE (((tbRePosten.IDBelegung)=5));
SELECT ID FROM tblBelegung WHERE ID <> 5 AND Zimmernummer = 3 AND Gelöscht = FALSE AND (Von >= CVDATE('13.06.2026') AND von <= CVDATE( ' 14.06.2026 ' ) OR (CVDATE('13.06.2026') > Von AND (CVDATE('13.06.2026')) < Bis))
SELECT ID, Kürzel, Zimmernummer, Von, Bis FROM tblBelegung WHERE ID IN (5)
SELECT distinct ID FROM tblBelegung WHERE (Not (tblBelegung.ID)=5) AND  Zimmernummer = 5 AND Gelöscht = FALSE  AND (Von >= CVDATE('15.06.2026') AND von <= CVDATE( ' 14.06.2026 ' ) OR   Bis >= CVDATE('15.06.2026')  AND BIS <= CVDATE('15.06.2026') OR   (CVDATE('15.06.2026') >= Von AND (CVDATE('15.06.2026')) < Bis) OR  (CVDATE('15.06.2026') > Von AND (CVDATE('15.06.2026') < Bis)))
SELECT distinct ID FROM tblBelegung WHERE Zimmernummer = 5
SELECT tbZimmernummern.Zimmernummer, tbZimmernummern.NeueNummer From tbZimmernummern WHERE (((tbZimmernummern.Zimmernummer)  Not In (SELECT DISTINCT tblBelegung.Zimmernummer  FROM tblBelegung  WHERE (((tblBelegung.Von)=5) AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)>5 And (tblBelegung.Von)<5) AND ((tblBelegung.Gelöscht)=False)) OR (((tblBelegung.Von)<=5) AND ((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>=5)) OR (((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)=5)) OR (((tblBelegung.Gelöscht)=False) AND ((tblBelegung.Bis)>5 And (tblBelegung.Bis)<5));))) order by tbZimmernummern.Zimmernummer;
SELECT tblBelegung.Kürzel, tbBlockbuchung.IDBlockbuchung FROM tblBelegung INNER JOIN tbBlockbuchung ON tblBelegung.ID = tbBlockbuchung.IDBelegung  WHERE (((tblBelegung.Kürzel) Like '5'));
SELECT *, Abgerechnet, IST_Geteilt FROM tblBelegung WHERE ID IN (5)
SELECT CDbl([tblTarife].[Tarif]) AS dTarif From tblTarife  ORDER BY CDbl([tblTarife].[Tarif])
SELECT Zimmernummer, PreisNebensaison, PreisZwischensaison, PreisHauptsaison, PreisSondersaison From tbZimmernummern  Where (((Zimmernummer) = 5)  And ((PreisNebensaison) Is Null) And ((PreisZwischensaison) Is Null)  And ((PreisHauptsaison) Is Null) And ((PreisSondersaison) Is Null))
SELECT tbSaisonzeiten.Saisonbezeichnung From tbSaisonzeiten  WHERE (((CVDate('15.06.2026'))>=[tbSaisonzeiten].[Start] And (CVDate('15.06.2026'))<[tbSaisonzeiten].[Ende]))
SELECT Zimmernummer, PreisDefault  ,Preis5 From tbZimmernummern  WHERE Zimmernummer = 5
SELECT tblTarife.Tarif From tblTarife WHERE (((tblTarife.Tarif) like '5' ));
SELECT tblTarife.Tarif From tblTarife WHERE format(tblTarife.Tarif, '###,##0.00')= '5'
SELECT idSaisonzeiten,  Start as [Saison-Beginn], Ende as [Saison-Ende] , Saisonbezeichnung   FROM tbSaisonzeiten
SELECT Max(tbSaisonzeiten.Ende) FROM tbSaisonzeiten
SELECT IDSaisonzeiten FROM tbSaisonzeiten WHERE   (Start >= CVDATE('15.06.2026')  AND Start <= CVDATE( ' 14.06.2026 ' ) OR  Ende >= CVDATE('15.06.2026')  AND Ende <= CVDATE('15.06.2026') OR  (CVDATE('15.06.2026') > Start AND (CVDATE('15.06.2026')) < Ende)  OR (CVDATE('15.06.2026') > Start AND (CVDATE('15.06.2026') < Ende)))
DELETE  From tbSaisonzeiten WHERE (((IDSaisonzeiten)=5))
SELECT Zimmernummer, PreisDefault, PreisNebensaison, PreisZwischensaison,  PreisHauptsaison, PreisSondersaison From tbZimmernummern WHERE Zimmernummer = 5
SELECT tbBelegArten.BelegungsID, tbBelegArten.BelegungsArt  From tbBelegArten where BelegungsID <> 0 Order by BelegungsID
SELECT tblBelegung.Abgerechnet From tblBelegung WHERE (((tblBelegung.ID)=5));
SELECT tblBelegung.Belegungsart, tblBelegung.Von, tblBelegung.Gelöscht, tbBelegArten.BelegungsArt, tbBlockbuchung.IDBelegung FROM (tblBelegung INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = tbBelegArten.BelegungsID) LEFT JOIN  tbBlockbuchung ON tblBelegung.ID = tbBlockbuchung.IDBelegung  WHERE (((tblBelegung.Von)<=#06-15-2026#) AND ((tblBelegung.Gelöscht)=False) AND  ((tbBelegArten.BelegungsArt)='Angebot') AND ((tbBlockbuchung.IDBelegung) Is Null));
SELECT tbBlockbuchung.IDBelegung  From tbBlockbuchung WHERE (((tbBlockbuchung.IDBelegung)= 5 ));
SELECT tbBlockbuchung.IDBelegung, tbBlockbuchung.IDBlockbuchung  From tbBlockbuchung  Where (((tbBlockbuchung.IDBelegung) = 5));
Update tblParameter set tblParameter.F1 = '5'  WHERE (((tblParameter.Satz)='MWST'));
SELECT tblBelegung.* From tblBelegung WHERE (((tblBelegung.ID)=5))
UPDATE tbBlockbuchung  INNER JOIN tblBelegung  ON tbBlockbuchung.IDBelegung = tblBelegung.ID  SET tblBelegung.Info = CStr('15.06.2026') WHERE (((tbBlockbuchung.IDBlockbuchung)=(SELECT tbBlockbuchung.IDBlockbuchung  From tbBlockbuchung  WHERE (((tbBlockbuchung.IDBelegung)=5));)));
SELECT tbBlockbuchung.IDBlockbuchung FROM tbBlockbuchung  INNER JOIN tblBelegung ON tbBlockbuchung.IDBelegung = tblBelegung.ID  WHERE (((tblBelegung.ID)=5));
UPDATE tbBlockbuchung INNER JOIN tblBelegung ON tbBlockbuchung.IDBelegung = tblBelegung.id  SET tblBelegung.FIX = 5 WHERE (((tbBlockbuchung.IDBlockbuchung)=5));
SELECT tbRePosten.IDArtikel From tbRePosten  WHERE (((tbRePosten.IDBelegung)=5) AND ((tbRePosten.IstVerpflegung)>0));
SELECT tbArtKategorie.IDArtKategorie, tbArtKategorie.ArtKategorie,  tbArtKategorie.Preis, tbArtKategorie.istVerpflegung, tbArtKategorie.MWST_SL, tbArtKategorie.KeinDatum  From tbArtKategorie  WHERE (((tbArtKategorie.IDArtKategorie)=5));
SELECT tbArtKategorie.IDArtKategorie, tbArtKategorie.ArtKategorie From tbArtKategorie Where (((tbArtKategorie.istVerpflegung) = 5))  ORDER BY tbArtKategorie.IstStandard DESC , tbArtKategorie.ArtKategorie;
DELETE tbRePosten.IDBelegung, tbRePosten.IstVerpflegung From tbRePosten  WHERE (((tbRePosten.IDBelegung)=5) AND ((tbRePosten.IstVerpflegung)>0));
SELECT tblBelegung.ID, tblBelegung.GastID, tblBelegung.Von, tblBelegung.Bis, tblBelegung.AnzahlGäste  ,  tblBelegung.Frühstück, tblBelegung.Mittag, tblBelegung.Abendessen, tblBelegung.Abgerechnet,  tblBelegung.IDAdressRechnung From tblBelegung WHERE (((tblBelegung.ID)=5));
SELECT tblBelegung.BelegNummer, ID  From tblBelegung WHERE ((tblBelegung.BelegNummer = 5) and (ID <> 5))
SELECT tblBelegung.BelegNummer, ID  From tblBelegung WHERE ((tblBelegung.BelegNummer_eigen= '5') and (ID <> 5))
SELECT distinct BelegNummer_eigen,  BelegNummer  From tblBelegung  Where BelegNummer <> NULL and belegnummer > 0   ORDER BY tblBelegung.BelegNummer
SELECT   BelegNummer  From tblBelegung  Where BelegNummer = 5
Select Satz, F1,F2 ,F3, F4 from tblParameter where Satz = 'BeNummer';
SELECT WeitereGäste.ID_Gast, WeitereGäste.ID_Belegung, WeitereGäste.Name,  WeitereGäste.Vorname, WeitereGäste.Strasse, WeitereGäste.PLZ, WeitereGäste.Ort,  WeitereGäste.Anrede As W_Anrede, WeitereGäste.Land, WeitereGäste.ID_Adresse, Address.ID, Address.Anrede, tbAnreden.Anrede as Anreden, Address.FirstName, Address.LastName, Address.Address, Address.PostalCode, Address.City, Address.Country, tbLänder.Länder  FROM ((Address RIGHT JOIN WeitereGäste ON Address.ID = WeitereGäste.ID_Adresse) LEFT JOIN tbAnreden ON Address.IDAnrede = tbAnreden.IDAnrede) LEFT JOIN tbLänder ON Address.IDLand = tbLänder.ID  WHERE (((WeitereGäste.ID_Belegung)=5))ORDER BY WeitereGäste.Name,  Address.LastName
SELECT WeitereGäste.ID_Gast, ID_Adresse,  WeitereGäste.ID_Belegung, WeitereGäste.Name,  WeitereGäste.Vorname, WeitereGäste.Strasse, WeitereGäste.PLZ, WeitereGäste.Ort ,Anrede, Land From WeitereGäste WHERE (((WeitereGäste.ID_Gast)=5));
select * from WEitereGäste;
SELECT Address.ID,  Address.LastName FROM Address ORDER BY Address.LastName;
UPDATE tblBelegung SET tblBelegung.IDAdressRechnung = 5
Delete From tbArtKategorie WHERE (((tbArtKategorie.ArtKategorie)= '5' ));
DELETE tbRechnungen_zu_Posten.*, tbRechnungen_zu_Posten.IDPostenRe  From tbRechnungen_zu_Posten WHERE (((tbRechnungen_zu_Posten.IDPostenRe)=5));
UPDATE tbRechnungen_zu_Posten RIGHT JOIN tblBelegung  ON tbRechnungen_zu_Posten.IDBelegung = tblBelegung.ID SET tblBelegung.Abgerechnet = 0
SELECT tblBelegung.ID, tblBelegung.Abgerechnet  From tblBelegung  WHERE (((tblBelegung.ID)=5) AND ((tblBelegung.Abgerechnet)<>1)AND ((tblBelegung.ID)<> 5));
UPDATE tblBelegung SET tblBelegung.IST_Geteilt = 'Y', tblBelegung.Abgerechnet = 1 WHERE (((tblBelegung.ID)=5));
Delete tbRePosten.*, tbRePosten.IST_Belegung, tbRePosten.IDBelegung, tbRePosten.AbgerechnetPo  From tbRePosten  WHERE (((tbRePosten.IST_Belegung)='Y')  AND ((tbRePosten.IDBelegung)=5)  AND ((tbRePosten.AbgerechnetPo)<>'Ja'));
UPDATE tblBelegung SET tblBelegung.Re_text = '5' WHERE (((tblBelegung.ID)=5));
UPDATE tblBelegung SET tblBelegung.Abgerechnet = 5
UPDATE tbRePosten SET tbRePosten.AbgerechnetPo = '5'
DELETE IDPostenRe From tbRechnungen_zu_Posten WHERE IDPostenRe = 5
UPDATE tbRechnungen set tbRechnungen.BetragMWST = 5 , tbRechnungen.BetragBrutto = 5, tbRechnungen.Rabatt_Betrag = 5, tbRechnungen.Rabatt_Proz = Null, tbRechnungen.Rabatt_Bezeichnung = '5' Where (tbRechnungen.ReNummer = 5);
DELETE tbRechnungen_zu_Posten.*, tbRechnungen_zu_Posten.IDRechnung  From tbRechnungen_zu_Posten   WHERE (((tbRechnungen_zu_Posten.IDRechnung)= 5));
Select IdBelegung, IdRechnung from  tbZahlung WHERE tbZahlung.IdBelegung=5 and IDRechnung is NULL;
UPDATE tblBelegung INNER JOIN tbRechnungen_zu_Posten ON tblBelegung.ID =  tbRechnungen_zu_Posten.IDBelegung SET tblBelegung.Abgerechnet = 1  WHERE (((tbRechnungen_zu_Posten.IDRechnung)=5));
Select Renummer_Eigen, Renummer from tbRechnungen where (Renummer_eigen = '5' and Renummer <> 5 );
SELECT tbRechnungen.ReZaehler From tbRechnungen  WHERE (((tbRechnungen.ReZaehler)=5));
SELECT Max(reZaehler) FROM tbRechnungen
SELECT reZaehler From tbRechnungen where reZaehler <> NULL ORDER BY reZaehler desc
SELECT Max(BesZaehler) FROM tbRechnungen
SELECT Beszaehler From tbRechnungen where Beszaehler <> NULL ORDER BY Beszaehler
SELECT Max(tbSteuerschluessel.IDSteuerschluessel) AS [LetzteNummer]  FROM tbSteuerschluessel;
SELECT IDSteuerSchluessel, Steuersatz  From tbSteuerschluessel  Where idSTeuerschluessel in (5)  ORDER BY Steuersatz DESC;
INSERT INTO tbSteuerschluessel ( Steuersatz, Standard ) values( 16, True)
SELECT tbSteuerschluessel.IDSteuerschluessel, tbSteuerschluessel.Steuersatz , tbSteuerschluessel.Standard, tbSteuerschluessel.StandardGueltigBis From tbSteuerschluessel Where (((tbSteuerschluessel.Standard) = True))  ORDER BY tbSteuerschluessel.StandardGueltigBis;
SELECT IDSteuerschluessel, IDNachfolger From tbSteuerschluessel WHERE IDNachfolger= 5
SELECT tbRePosten.IDRePosten, tbRePosten.IDSteuerschlüssel  From tbRePosten WHERE (((tbRePosten.IDSteuerschlüssel)= 5));
SELECT IDNachfolger From tbSteuerschluessel WHERE (((IDNachfolger)=5))
SELECT Max(IDSteuerschluessel) FROM tbSteuerschluessel
Update tbSteuerschluessel set Standard = true5false
Update tbSteuerschluessel set GueltigSeit  = cdate('15.06.2026')
DELETE  From tbSteuerschluessel WHERE (((IDSteuerschluessel)=5))
SELECT tbRechnungen_zu_Posten.IDPostenRe, tbRechnungen_zu_Posten.IDBelegung,  tbRechnungen_zu_Posten.Reihenfolge  From tbRechnungen_zu_Posten  WHERE (((tbRechnungen_zu_Posten.IDRechnung)=5)) ORDER BY tbRechnungen_zu_Posten.Reihenfolge;
UPDATE tbRechnungen SET BetragBrutto = 5 WHERE (((ReNummer)=5))
SELECT tbZahlung.IdRechnung, tbZahlung.ZahlDatum, tbZahlung.Betrag, tbZahlung.IdBelegung  From tbZahlung WHERE (tbZahlung.IdRechnung = 5)
SELECT Sum(tbZahlung.Betrag)  From tbZahlung WHERE (((tbZahlung.IdRechnung)=5))
SELECT DISTINCT tbRePosten.IDAdressePo, tbRePosten.AbgerechnetPo  From  tbRePosten  WHERE (((tbRePosten.IDAdressePo= 5)))
SELECT ReNummer, BetragBrutto From tbRechnungen WHERE ReNummer = 5
DELETE IdRechnung From tbZahlung WHERE IdRechnung = 5
Insert into tbZahlung ( ZahlDatum,Zahlart,Betrag ,IDRechnung, WasBezahlt, IDBelegung)   Values (CDate('15.06.2026'), '5', 5,5, 'Gesamtzahlung', 5)
SELECT distinct tbZahlart.Zahlarten  From tbZahlart ORDER BY tbZahlart.Zahlarten;
UPDATE tblBelegung INNER JOIN tbRechnungen_zu_Posten ON tblBelegung.ID =  tbRechnungen_zu_Posten.IDBelegung SET tblBelegung.Abgerechnet = 0  WHERE (((tblBelegung.IST_Geteilt)<>'Y') AND  ((tbRechnungen_zu_Posten.IDRechnung)=5))  OR (((tblBelegung.IST_Geteilt) Is Null)  AND ((tbRechnungen_zu_Posten.IDRechnung)=5));
UPDATE tbRechnungen_zu_Posten INNER JOIN tbRePosten ON   tbRechnungen_zu_Posten.IDPostenRe = tbRePosten.IDRePosten SET tbRePosten.AbgerechnetPo = 'Nein'  WHERE (((tbRechnungen_zu_Posten.IDRechnung)=5));
UPDATE tbZahlung SET tbZahlung.IdBelegung = 5 WHERE ((tbZahlung.IdRechnung=5)and tbZahlung.IdBelegung IS NULL)
UPDATE tbZahlung SET  tbZahlung.IdRechnung = Null WHERE (((tbZahlung.IdRechnung)=5));
DELETE tbRechnungen_zu_Posten.*, tbRechnungen_zu_Posten.IDRechnung  From tbRechnungen_zu_Posten  WHERE (((tbRechnungen_zu_Posten.IDRechnung)=5));
DELETE tbRechnungen.*, tbRechnungen.Renummer  From tbRechnungen  WHERE (((tbRechnungen.Renummer)=5));
UPDATE tbZahlung SET tbZahlung.IdRechnung = Null  WHERE (((tbZahlung.IdRechnung)=5))
SELECT tbRechnungen_zu_Posten.IDRechnung, tbRechnungen.ReNummer FROM tbRechnungen_zu_Posten RIGHT JOIN tbRechnungen ON  tbRechnungen_zu_Posten.IDRechnung = tbRechnungen.ReNummer  WHERE (((tbRechnungen_zu_Posten.IDRechnung) Is Null));
DELETE tbRechnungen.* From tbRechnungen WHERE (((tbRechnungen.ReNummer)=5));
UPDATE tbRePosten SET tbRePosten.AbgerechnetPo = '5' WHERE (((tbRePosten.IDRePosten)=5));
SELECT SATZ, F1 from tblParameter WHERE Satz = 'MitGästezahlA';
UPDATE tblTexte SET tblTexte.Inhalt = '' WHERE (((tblTexte.Inhalt) Is Null));
SELECT Inhalt, Textbaustein From tblTexte where Textbaustein = 'Steuernummer';
SELECT tblTexte.Inhalt From tblTexte ORDER BY tblTexte.ID;
SELECT * FROM tblTexte
Select ID, Lastname from Address Where format(lastname,'<') like '5*' order by lastname
Select ID, Lastname from Address Where ID = 5
SELECT tblBelegung.GastID From tblBelegung WHERE (((tblBelegung.GastID)=5));
SELECT Address.BenutztVon1 ,Address.BenutztVon3 ,Address.BenutztVon4 ,  Address.Herkunft1, Address.Herkunft3, Address.Herkunft4 From Address WHERE (((Address.ID)=5));
SELECT Address.BenutztVon1,Address.BenutztVon3,Address.BenutztVon4, tblBelegung.ID, Address.ID, tblBelegung.GastID  FROM tblBelegung RIGHT JOIN Address ON tblBelegung.GastID = Address.ID WHERE (((tblBelegung.GastID) Is Null));
DELETE Address.ID, Address.* From Address WHERE (((Address.ID)=5));
Select * From tbLänder Where Länder = '15.06.2026'
delete tbLänder.*, tbLänder.Länder From tbLänder WHERE (((tbLänder.ID)= 5))
SELECT * From tbLänder WHERE (((Länder)='Deutschland'));
SELECT tbPLZ.Ort, tbPLZ.PLZ From tbPLZ WHERE (((tbPLZ.PLZ) Like '5*')) Order by Ort
SELECT Address.*, Address.ID as AdID From Address WHERE (((Address.ID)=5));
UPDATE tblBelegung SET tblBelegung.Abg_Temp = Null
UPDATE (tblBelegung LEFT JOIN tbRechnungen_zu_Posten ON  tblBelegung.ID = tbRechnungen_zu_Posten.IDBelegung)  INNER JOIN tbBelegArten ON tblBelegung.Belegungsart = tbBelegArten.BelegungsID  SET tblBelegung.Abg_Temp = 'Nein' WHERE (((tblBelegung.Abgerechnet)=0) AND ((tblBelegung.Gelöscht)=False)  AND ((tbBelegArten.BelegungsArt) Not Like 'Angebot'))  OR (((tblBelegung.ID)=(SELECT distinct tbRePosten.IDBelegung   From tbRePosten  WHERE (((tbRePosten.IDBelegung)=[tblBelegung].[ID])  AND ((tbRePosten.AbgerechnetPo)<>'Ja'));)))
UPDATE tblBelegung SET Abg_Temp = 'Ja' WHERE (((Abg_Temp) Is Null))
SELECT Address.ID, Address.LastName, Address.FirstName, Address.Address, Address.City From Address  WHERE ((Address.ID Is Null))
SELECT tblBelegung.ID From tblBelegung  Where (((IIf(DateDiff('d', Now(), [Von]) < 0,  (DateDiff('d', Now(), [Von])) * -1, DateDiff('d', Now(), [Von]))) < 32)  And ((tblBelegung.GastID) = 5))  Or ID = 7
SELECT tblBelegung.ID From tblBelegung  WHERE (((tblBelegung.GastID)=5))  OR (((tblBelegung.IDAdressRechnung)=5))
SELECT tbZusätze.ZusatzFeld, tbZusätze.Beschriftung, tbZusätze.Bedeutung,  tbZusätze.Farbe, tbZusätze.Spalte From tbZusätze ORDER BY tbZusätze.Beschriftung;
SELECT tbZusätze.*, tbZusätze.ZusatzFeld From tbZusätze WHERE (((tbZusätze.ZusatzFeld)= 5 ));
UPDATE tbZimmernummern SET Reihenfolge_Hilf = Zimmernummer
UPDATE tbZimmernummern  SET tbZimmernummern.Zimmernummer = 99 WHERE (((Zimmernummer)= cint(5)))
UPDATE tblBelegung SET tblBelegung.Zimmernummer = 5
UPDATE tbZimmernummern SET tbZimmernummern.Zimmernummer = 5 WHERE (((tbZimmernummern.Zimmernummer)= 5))
UPDATE tbZimmernummern SET tbZimmernummern.Zimmernummer  = 5 WHERE (((Zimmernummer)=99))
SELECT tblBelegung.ID, tblBelegung.Zimmernummer From tblBelegung WHERE (((tblBelegung.Zimmernummer)>5) AND ((tblBelegung.Gelöscht)=False));
SELECT F2 FROM tblParameter WHERE Satz = 'Räumlichkeiten'
Select * from tbArtKategorie  where ArtKategorie = '5'
SELECT IDArtKategorie, ArtKategorie, Preis, MWST_SL, Bem_ArtKategorie, Keindatum, istVerpflegung ,IstStandard  From tbArtKategorie WHERE IDArtKategorie = 5
SELECT tbArtKategorie.IDArtKategorie, tbArtKategorie.istVerpflegung,  tbArtKategorie.IstStandard From tbArtKategorie  WHERE (((tbArtKategorie.istVerpflegung)=5) AND ((tbArtKategorie.IstStandard)=1));
DELETE  From tbArtKategorie WHERE (((IDArtKategorie)=5))
SELECT IDSteuerschluessel, Steuersatz From tbSteuerschluessel ORDER BY tbSteuerschluessel.Steuersatz DESC
SELECT Max(tbFeiertage.IDFeiertage) AS [Max von IDFeiertage] FROM tbFeiertage
SELECT FTDatum From tbFeiertage WHERE FTDatum=CDate('15.06.2026')
SELECT IDFeiertage, FTBezeichnung, FTDatum  From tbFeiertage  WHERE IDFeiertage = 5
DELETE  From tbFeiertage WHERE (((IDFeiertage)=5))
SELECT DISTINCTROW tbFeiertage.FTBezeichnung, tbFeiertage.FTDatum From tbFeiertage  WHERE (((tbFeiertage.FTBezeichnung)='5') AND ((tbFeiertage.FTDatum)=CDate('15.06.2026')))
DELETE * FROM tblBelegung WHERE datediff('m', Bis, Now) >= 5;
DELETE tbBlockbuchung.IDBlockbuchung, tbBlockbuchung.IDBelegung From tbBlockbuchung WHERE (((tbBlockbuchung.IDBelegung)  Not In (Select ID From tblBelegung;)));
DELETE tbRechnungen_zu_Posten.IDBelegung From tbRechnungen_zu_Posten  WHERE (((tbRechnungen_zu_Posten.IDBelegung)  Not In (Select ID from TBLBelegung;) And (tbRechnungen_zu_Posten.IDBelegung)<>0));
DELETE tbZahlung.IDBelegung From tbZahlung  WHERE (((tbZahlung.IDBelegung) Not In (Select ID from TBLBelegung;)))
DELETE WeitereGäste.ID_Belegung From WeitereGäste  WHERE (((WeitereGäste.ID_Belegung) Not In (Select ID from TBLBelegung;)))
DELETE tbRePosten.IDBelegung From tbRePosten  WHERE (((tbRePosten.IDBelegung) Not In (Select ID from TBLBelegung;)))
SELECT tbBlockbuchung.IDBlockbuchung, tbBlockbuchung.IDBelegung From tbBlockbuchung ORDER BY tbBlockbuchung.IDBlockbuchung, tbBlockbuchung.IDBelegung;
SELECT tbBlockbuchung.IDBelegung,  Count(tbBlockbuchung.IDBlockbuchung) AS [Anz] From tbBlockbuchung  GROUP BY tbBlockbuchung.IDBelegung  Having (((Count(tbBlockbuchung.IDBlockbuchung)) > 1))  ORDER BY tbBlockbuchung.IDBelegung, Count(tbBlockbuchung.IDBlockbuchung);
Insert into tbAdress_zu_Adress (IDAdresseOber, IDAdresseUnter)  values ( 5);
Update address set IDÜberAdresse = Null;
INSERT INTO tbAdresskategorie ( AdressKatName, AdressKatBemerkung )values  ('5','importiert' )
SELECT DISTINCT Address.ID FROM Address INNER JOIN tblBelegung ON Address.ID = tblBelegung.GastID;
DELETE tbAnsprechpartner.*, Address.ID  FROM Address RIGHT JOIN tbAnsprechpartner ON Address.ID = tbAnsprechpartner.IDAdresse
SELECT tbAnreden.IDAnrede, tbAnreden.Anrede From tbAnreden  WHERE (((tbAnreden.Anrede) Like '15.06.2026'))
INSERT INTO tbAnreden ( Anrede)values  ('Frau')
UPDATE Address LEFT JOIN tbAnreden ON Address.IDAnrede = tbAnreden.IDAnrede  SET Address.Anrede = Null WHERE (((tbAnreden.IDAnrede) Is Not Null));
UPDATE tblBelegung SET tblBelegung.Abgerechnet = 1 WHERE (((tblBelegung.Von)< CDate('15.06.2026'))  AND ((tblBelegung.GastID)=5))
SELECT tblBelegung.ID, tbZahlung.ZahlDatum, tbZahlung.Betrag, tbZahlung.IDBelegung FROM tblBelegung INNER JOIN tbZahlung ON tblBelegung.ID = tbZahlung.IDBelegung WHERE (((tblBelegung.ID)=5)) Union ( SELECT null, tbZahlung.ZahlDatum, tbZahlung.Betrag, tbZahlung.IdBelegung From tbZahlung WHERE (((tbZahlung.IdBelegung) = 5));) order by 1 
SELECT (SELECT Inhalt FROM tblTexte WHERE Textbaustein='Bank') AS TEXT4, Inhalt FROM tblTexte
SELECT Kürzel, Zimmernummer, Von FROM tblBelegung WHERE (Von BETWEEN CVDATE('01.06.2026') AND DATEADD('d',35,CVDATE('01.06.2026'))) OR (Bis BETWEEN CVDATE('01.06.2026') AND DATEADD('d',35,CVDATE('01.06.2026')))
