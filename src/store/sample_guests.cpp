#include "store/sample_guests.h"

#include <array>

namespace store {

namespace {

constexpr std::array<SampleGuest, 42> kGuests = {{
    {"Frau", "Käthe", "Brinkmann", "Lindenallee 4", "28195", "Bremen", "0421 5550101"},
    {"Herr", "Jürgen", "Weiß", "Am Markt 12", "04109", "Leipzig", "0341 5550102"},
    {"Familie", "Anke", "Sommerfeld", "Birkenweg 7", "23552", "Lübeck", "0451 5550103"},
    {"Herr", "Friedrich", "Öhlschläger", "Hauptstraße 88", "70173", "Stuttgart", "0711 5550104"},
    {"Frau", "Renate", "Hoffmann", "Gartenstraße 3a", "99084", "Erfurt", "0361 5550105"},
    {"Firma", "", "Kranbau Petersen GmbH", "Hafenstraße 21", "24103", "Kiel", "0431 5550106"},
    {"Herr", "Mehmet", "Yıldız", "Rosenthaler Straße 40", "10178", "Berlin", "030 5550107"},
    {"Herr und Frau", "Horst", "Dörfler", "Bergstraße 15", "01069", "Dresden", "0351 5550108"},
    {"Frau", "Sabine", "von der Aue", "Schlossplatz 2", "48143", "Münster", "0251 5550109"},
    {"Herr", "Sven", "Jörgensen", "Fördeufer 9", "24937", "Flensburg", "0461 5550110"},
    {"Familie", "Thomas", "Kühn", "Wiesengrund 31", "34117", "Kassel", "0561 5550111"},
    {"Frau", "Ingrid", "Straßburger", "Domplatz 6", "50667", "Köln", "0221 5550112"},
    {"Herr", "Dieter", "Albrecht", "Mühlenweg 18", "18055", "Rostock", "0381 5550113"},
    {"Frau", "Monika", "Zimmermann", "Bahnhofstraße 52", "65183", "Wiesbaden", "0611 5550114"},
    {"Herr", "Karl-Heinz", "Lütke", "Ostwall 5", "47798", "Krefeld", "02151 5550115"},
    {"Eheleute", "Werner", "Schäfer", "Am Anger 1", "37073", "Göttingen", "0551 5550116"},
    {"Frau", "Julia", "Neumann", "Goethestraße 77", "60313", "Frankfurt am Main", "069 5550117"},
    {"Herr", "Bernd", "Krüger", "Kirchgasse 10", "97070", "Würzburg", "0931 5550118"},
    {"Firma", "", "Müller Druck OHG", "Industriering 14", "45127", "Essen", "0201 5550119"},
    {"Frau", "Claudia", "Böttcher", "Seestraße 29", "19053", "Schwerin", "0385 5550120"},
    {"Herr", "Uwe", "Grünwald", "Ringstraße 63", "93047", "Regensburg", "0941 5550121"},
    {"Herr", "Johann", "Huber", "Mariahilfer Straße 33", "1060", "Wien", "+43 1 5550122", "Österreich"},
    {"Frau", "Ursula", "Ammann", "Seefeldstrasse 8", "8008", "Zürich", "+41 44 5550123", "Schweiz"},
    {"Herr", "Pieter", "van den Berg", "Prinsengracht 210", "1016 HD", "Amsterdam", "+31 20 5550124", "Niederlande"},
    {"Familie", "Stefan", "Jahnke", "Eichenweg 11", "38100", "Braunschweig", "0531 5550125"},
    {"Frau", "Gisela", "Pohl", "Poststraße 20", "06108", "Halle (Saale)", "0345 5550126"},
    {"Herr", "Wolfgang", "Ernst", "Lange Straße 45", "30159", "Hannover", "0511 5550127"},
    {"Frau", "Petra", "Fröhlich", "Am Stadtpark 2", "90402", "Nürnberg", "0911 5550128"},
    {"Herr", "Matthias", "Rößler", "Elbchaussee 301", "22605", "Hamburg", "040 5550129"},
    {"Frau", "Heike", "Sauer", "Brunnenweg 16", "79098", "Freiburg", "0761 5550130"},
    {"Herr und Frau", "Erich", "Thiele", "Parkallee 24", "39104", "Magdeburg", "0391 5550131"},
    {"Herr", "Rolf", "Vogt", "Marktstraße 39", "55116", "Mainz", "06131 5550132"},
    {"Frau", "Elisabeth", "Wolter", "Am Deich 8", "26721", "Emden", "04921 5550133"},
    {"Firma", "", "Wanderfreunde Harz e. V.", "Brockenblick 1", "38855", "Wernigerode", "03943 5550134"},
    {"Frau", "Annegret", "Vollmer", "Maximilianstraße 17", "86150", "Augsburg", "0821 5550135"},
    {"Herr und Frau", "Klaus", "Reinhardt", "Simeonstraße 9", "54290", "Trier", "0651 5550136"},
    {"Frau", "Lena", "Hartung", "Wagnergasse 26", "07743", "Jena", "03641 5550137"},
    {"Herr", "Joachim", "Meinecke", "Obernstraße 41", "33602", "Bielefeld", "0521 5550138"},
    {"Familie", "Katrin", "Determann", "Bierstraße 13", "49074", "Osnabrück", "0541 5550139"},
    {"Herr", "Georg", "Lang", "Lange Straße 22", "96047", "Bamberg", "0951 5550140"},
    {"Eheleute", "Hartmut", "Seidel", "Plöck 58", "69117", "Heidelberg", "06221 5550141"},
    {"Frau", "Wiebke", "Harms", "Haarenstraße 30", "26122", "Oldenburg", "0441 5550142"},
}};

} // namespace

std::span<const SampleGuest> sampleGuests() { return kGuests; }

} // namespace store
