// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/drawings.h"

#include <array>

namespace velm::paint {

namespace {

constexpr auto all = std::to_array<Drawing>({
    {"tetrahedron", "80 FC 1C 80 88 FC, 88 1C"},
    {"cube", "80 F4 FC 8G 1C 14 80, 14 88 F4, 88 8G"},
    {"octahedron", "81 F8 8F 18 81 6A 8F A6 81, 18 6A F8 A6 18"},
    {"dodecahedron",
     "81 42 16 1A 4E 8F CE FA F6 C2 81, 84 47 6B AB C7 84, 84 81, 47 16, 6B 4E, AB CE, C7 F6"},
    {"icosahedron", "80 F4 FC 8G 1C 14 80, 84 BA 5A 84, 14 84 F4 BA 8G 5A 14, 80 84, FC BA, 1C 5A"},
    {"two tetrahedra", "80 FC 1C 80, 8G 14 F4 8G, 80 F4 FC 8G 1C 14 80"},
    {"cuboctahedron", "80 F4 FC 8G 1C 14 80, A5 48 AB A5, 80 A5 F4, 14 48 1C, 8G AB FC"},
    {"tesseract", "11 F1 FF 1F 11, 55 B5 BB 5B 55, 11 55, F1 B5, FF BB, 1F 5B"},
    {"cube in a cube",
     "80 F4 FC 8G 1C 14 80, 84 B6 BA 8C 5A 56 84, 80 84, F4 B6, FC BA, 8G 8C, 1C 5A, 14 56, 56 88 B6, 88 8C"},
    {"eight cubes", "81 33 18 3D 8F DD F8 D3 81, 81 3D F8 33 8F D3 18 DD 81"},
    {"pyramid", "81 1B 8F FB 81, 81 8F, 1B 88 FB, 81 88"},
    {"prism", "1E 54 9E 1E, 7B B1 FB 7B, 1E 7B, 54 B1, 9E FB"},
    {"antiprism", "81 25 2C 8F EC E5 81, 64 48 6C AC C8 A4 64, 81 64 25 48 2C 6C 8F AC EC C8 E5 A4 81"},
    {"impossible triangle", "3E DE 96 88 AC 2C 3E, EC 92 5A 7A 96 DE EC, 72 2C AC 9A 5A 92 72"},
    {"carbon ball", "85 67 6A AA A7 85, 85 83, 67 36, 6A 5C, AA BC, A7 D6, 61 83 A1, 18 36 24, 6F 5C 2C, EC "
                    "BC AF, E4 D6 F8, A1 61 24 18 2C 6F AF EC F8 E4 A1"},
    {"globe",
     "81 B2 D3 E5 F8 EB DD BE 8F 5E 3D 2B 18 25 33 52 81, 81 64 58 6C 8F AC B8 A4 81, 18 F8, 34 D4, 3C DC"},
    {"ring of triangles",
     "81 52 25 18 2C 4E 8F CE EC F8 E5 B2 81, 81 65 25 58 2C 6B 8F AB EC B8 E5 A5 81, 65 58 6B AB B8 A5 65"},
    {"double pyramid", "81 D9 8F 39 81 6B 8F, 81 A7 8F, 39 6B D9 A7 39"},
    {"gem", "41 C1 F6 8F 16 41, 16 F6, 41 66 8F A6 C1, 66 81 A6"},
    {"pentagram", "81 4E F6 16 CE 81"},
    {"star in a pentagon", "81 16 4E CE F6 81, 81 4E F6 16 CE 81"},
    {"hexagram", "80 FC 1C 80, 8G 14 F4 8G"},
    {"heptagram", "81 1A BE D4 34 5E FA 81"},
    {"sharp heptagram", "81 5E D4 1A FA 34 BE 81"},
    {"octagram", "81 3D F8 33 8F D3 18 DD 81"},
    {"enneagram", "81 6F C3 2C F7 17 EC 43 AF 81"},
    {"twelve points", "80 CF 14 G8 1C C1 8G 41 FC 08 F4 4F 80"},
    {"three squares", "80 G8 8G 08 80, C1 FC 4F 14 C1, F4 CF 1C 41 F4"},
    {"four triangles", "80 FC 1C 80, C1 CF 08 C1, F4 8G 14 F4, G8 4F 41 G8"},
    {"complete seven", "81 34 1A 5E BE FA D4 81, 81 1A BE D4 34 5E FA 81, 81 5E D4 1A FA 34 BE 81"},
    {"mystic rose",
     "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 80 F4 FC 8G 1C 14 80, C1 G8 CF 4F 08 41 C1, 80 G8 8G 08 80, C1 "
     "FC 4F 14 C1, F4 CF 1C 41 F4, 80 FC 1C 80, C1 CF 08 C1, F4 8G 14 F4, G8 4F 41 G8, 80 CF 14 G8 1C C1 8G "
     "41 FC 08 F4 4F 80, 80 8G, C1 4F, F4 1C, G8 08, FC 14, CF 41"},
    {"north star", "81 A6 F8 AA 8F 6A 18 66 81, 81 8F, 18 F8, 66 AA, A6 6A"},
    {"faceted star", "81 66 16 59 4E 8B CE B9 F6 A6 81, 81 88 8B, 66 88 CE, 16 88 B9, 59 88 F6, 4E 88 A6"},
    {"compass rose", "81 97 F8 99 8F 79 18 77 81, C4 97, C4 B8, CC 99, CC 8B, 4C 79, 4C 58, 44 77, 44 85"},
    {"throwing star", "88 B5 81 65 88, 88 BB F8 B6 88, 88 5B 8F AB 88, 88 55 18 5A 88"},
    {"sun", "75 95 B7 B9 9B 7B 59 57 75, 84 81, 55 33, 48 18, 5B 3D, 8C 8F, BB DD, C8 F8, B5 D3"},
    {"blazing sun", "81 74 52 55 25 47 18 49 2C 5B 4E 7C 8F 9C CE BB EC C9 F8 C7 E5 B5 B2 94 81, 76 96 A7 A9 "
                    "9A 7A 69 67 76"},
    {"iris", "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 80 B6, C1 C8, F4 BA, G8 AB, FC 8C, CF 6B, 8G 5A, 4F "
             "48, 1C 56, 08 65, 14 84, 41 A5, 84 A5 B6 C8 BA AB 8C 6B 5A 48 56 65 84"},
    {"rosette", "88 80 A5, 88 C1 B6, 88 F4 C8, 88 G8 BA, 88 FC AB, 88 CF 8C, 88 8G 6B, 88 4F 5A, 88 1C 48, "
                "88 08 56, 88 14 65, 88 41 84, 80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80"},
    {"snowflake", "80 8G, 84 62, 84 A2, 8C 6E, 8C AE, 88 14, 56 53, 56 27, 88 F4, B6 B3, B6 E7, 88 1C, 5A "
                  "5D, 5A 29, 88 FC, BA BD, BA E9"},
    {"frost star", "84 B6 BA 8C 5A 56 84, 86 A7 A9 8A 69 67 86, 80 8G, 83 61, 83 A1, 8D 6F, 8D AF, 88 14, 35 "
                   "33, 35 16, 88 F4, D5 D3, D5 F6, 88 1C, 3B 3D, 3B 1A, 88 FC, DB DD, DB FA"},
    {"strung diamond", "81 88, 82 98, 83 A8, 84 B8, 85 C8, 86 D8, 87 E8, 88 F8, 81 88, 82 78, 83 68, 84 58, "
                       "85 48, 86 38, 87 28, 88 18, 8F 88, 8E 98, 8D A8, 8C B8, 8B C8, 8A D8, 89 E8, 88 F8, "
                       "8F 88, 8E 78, 8D 68, 8C 58, 8B 48, 8A 38, 89 28, 88 18"},
    {"strung square", "11 1F, 13 3F, 15 5F, 17 7F, 19 9F, 1B BF, 1D DF, 1F FF, F1 11, D1 13, B1 15, 91 17, "
                      "71 19, 51 1B, 31 1D, 11 1F, FF F1, FD D1, FB B1, F9 91, F7 71, F5 51, F3 31, F1 11, "
                      "1F FF, 3F FD, 5F FB, 7F F9, 9F F7, BF F5, DF F3, FF F1"},
    {"trefoil", "8A BA D8 E6 E4 D3 A3 84 66 59 5C 6E 8F AE BC B9 A6 84 63 33 24 26 38 5A 8A"},
    {"four-leaved knot",
     "F8 FA DB CC AC 9C 8B 7A 79 69 58 47 46 44 53 61 81 A1 B3 C4 C6 C7 B8 A9 99 9A 8B 7C 6C 4C 3B 1A 18 16 "
     "35 44 64 74 85 96 97 A7 B8 C9 CA CC BD AF 8F 6F 5D 4C 4A 49 58 67 77 76 85 94 A4 C4 D5 F6 F8"},
    {"woven square", "81 FC DF 31 15 8F F5 D1 3F 1C 81"},
    {"three rings", "81 62 43 45 48 69 8A A9 C8 C5 C3 A2 81, 56 36 28 1A 2C 3E 5F 8E 9C AA 98 86 56, B6 86 "
                    "78 6A 7C 8E BF DE EC FA E8 D6 B6"},
    {"three triangles", "81 C9 49 81, 57 9E 1E 57, B7 FE 7E B7"},
    {"atom", "F8 F9 EA CA AA 8B 6A 4A 2A 19 18 17 26 46 66 85 A6 C6 E6 F7 F8, CE BE AE 9D 8C 7B 69 58 46 45 "
             "43 42 52 62 73 84 95 A7 B8 CA CB CD CE, C2 C3 C5 C6 B8 A9 9B 8C 7D 6E 5E 4E 4D 4B 4A 58 67 75 "
             "84 93 A2 B2 C2, 87 98 89 78 87"},
    {"four leaves", "F8 F9 EA DA BA 99 88 77 65 63 62 71 81 91 A2 A3 A5 97 88 79 5A 3A 2A 19 18 17 26 36 56 "
                    "77 88 99 AB AD AE 9F 8F 7F 6E 6D 6B 79 88 97 B6 D6 E6 F7 F8"},
    {"square spiral", "79 77 A7 AB 5B 55 C5 CD 3D 33 E3 EF 1F 11 F1"},
    {"six-sided spiral", "88 78 79 89 A9 A7 85 57 5A 8C BA C6 83 45 3B 8E DB E5 81 24"},
    {"three-sided spiral", "88 79 99 86 6A BA 85 4B CB 83 3C EC 82"},
    {"two-armed spiral", "88 78 69 7A 9B AB BA C8 C7 B5 A4 83 63 44 26 19 2B, 88 98 A7 96 75 65 56 48 49 5B "
                         "6C 8D AD CC EA F7 E5"},
    {"galaxy", "88 A7 B6 B5 A4 A3 92 82 71 61, 88 95 84 74 73 63 53 44 34 25, 88 76 65 55 46 36 27 28 19 1A, "
               "88 57 48 49 39 3A 3B 4C 4D 5E, 88 69 5A 5B 6C 6D 7E 8E 9F AF, 88 7B 8C 9C 9D AD BD CC DC EB, "
               "88 9A AB BB CA DA E9 E8 F7 F6, 88 B9 C8 C7 D7 D6 D5 C4 C3 B2"},
    {"turning squares", "11 F1 FF 1F 11, 81 F8 8F 18 81, 44 C4 CC 4C 44, 84 C8 8C 48 84, 66 A6 AA 6A 66"},
    {"triangle in a triangle", "81 ED 2D 81, B7 8D 57 B7, 87 AA 6A 87"},
    {"turning pentagons", "81 16 4E CE F6 81, 62 28 6E DC D4 62, 54 3A 8D D9 B4 54, 46 5B AC C8 94 46"},
    {"curve that fills the plane",
     "11 31 33 13 15 17 37 35 55 57 77 75 73 53 51 71 91 93 B3 B1 D1 F1 F3 D3 D5 F5 F7 D7 B7 B5 95 97 99 9B "
     "BB B9 D9 F9 FB DB DD FD FF DF BF BD 9D 9F 7F 5F 5D 7D 7B 79 59 5B 3B 39 19 1B 1D 3D 3F 1F"},
    {"triangles in triangles",
     "81 FD 1D 81, C7 8D 57 C7, A4 87 64 A4, 93 84 73 93, B6 A7 96 B6, 76 67 56 76, DA CD AA DA, C9 CA B9 "
     "C9, EC DD CC EC, BC AD 9C BC, 6A 5D 3A 6A, 59 5A 49 59, 7C 6D 5C 7C, 4C 3D 2C 4C"},
    {"coast of an island", "81 92 A2 93 A4 C4 C3 D4 E4 E6 E7 D7 C8 D9 E9 EA EC DC CD CC AC 9D AE 9E 8F 7E 6E "
                           "7D 6C 4C 4D 3C 2C 2A 29 39 48 37 27 26 24 34 43 44 64 73 62 72 81"},
    {"branching tree", "48 C8, 44 4C, C4 CC, 24 64, 2C 6C, A4 E4, AC EC, 22 26, 62 66, 2A 2E, 6A 6E, A2 A6, "
                       "E2 E6, AA AE, EA EE"},
    {"labyrinth", "7F 3F 1D 13 31 D1 F3 FD DF 9F, 7D 5D 3B 35 53 B3 D5 DB BD 9D 9F, 7F 7D, 8B 6B 5A 56 65 A5 "
                  "B6 BA 9A 97 77"},
    {"heart", "8F 19 14 32 52 85 B2 D2 F4 F9 8F, 8B 58 56 65 88 A5 B6 B8 8B"},
    {"lemniscate", "F8 FA EB DB CB AA 88 66 55 35 25 16 18 1A 2B 3B 4B 6A 88 A6 C5 D5 E5 F6 F8"},
    {"lightning", "A1 39 79 6F D6 96 C1 A1"},
    {"crescent", "C1 91 52 34 17 19 3C 5E 9F CF AD 8B 79 77 85 A3 C1"},
    {"cogwheel", "73 71 91 93 B3 C2 E4 D5 D7 F7 F9 D9 DB EC CE BD 9D 9F 7F 7D 5D 4E 2C 3B 39 19 17 37 35 24 "
                 "42 53 73, 75 95 B7 B9 9B 7B 59 57 75"},
    {"saw", "80 84 C1 A5 F4 B6 G8 C8 FC BA CF AB 8G 8C 4F 6B 1C 5A 08 48 14 56 41 65 80"},
    {"hourglass", "31 D1 D3 88 DD DF 3F 3D 88 33 31, 33 D3, 3D DD, 88 8D"},
    {"two notes", "5D 54 D2 DB, 56 D4, 5D 4C 2C 1D 1E 2F 4F 5E 5D, DB CA AA 9B 9C AD CD DC DB"},
    {"clover", "88 66 63 72 83 92 A3 A6 88, 88 A6 D6 E7 D8 E9 DA AA 88, 88 AA AD 9E 8D 7E 6D 6A 88, 88 6A 3A "
               "29 38 27 36 66 88"},
    {"helm", "63 A3 D6 DA AD 6D 3A 36 63, 76 96 A7 A9 9A 7A 69 67 76, 81 86, F8 A8, 8F 8A, 18 68, D3 97, DD "
             "99, 3D 79, 33 77"},
    {"pinwheel", "88 81 C4 88, 88 F8 CC 88, 88 8F 4C 88, 88 18 44 88"},
    {"propeller", "88 65 62 81 A2 A5 88, 88 C8 E9 EB CD AB 88, 88 6B 4D 2C 29 48 88"},
    {"rocket", "5D 57 64 81 A4 B7 BD, 5D BD, 59 2D 2F 5D, B9 ED EF BD, 87 96 85 76 87, 7D 8F 9D"},
    {"robot", "35 D5 DC 3C 35, 81 85, 71 91, 57 77 79 59 57, 97 B7 B9 99 97, 5B BB, 38 18 1B, D8 F8 FB, 5C "
              "5F 7F, BC BF 9F"},
    {"cat", "8F 4D 29 21 65 85 A5 E1 E9 CD 8F, 48 57 68 59 48, 8B 6C, 3B 1A, 4C 1D, C8 B7 A8 B9 C8, 8B AC, "
            "DB FA, CC FD, 7A 9A 8B 7A"},
    {"web", "86 66 68 6A 8A AA A8 A6 86, 83 55 38 5B 8D BB D8 B5 83, 81 33 18 3D 8F DD F8 D3 81, 88 81, 88 "
            "33, 88 18, 88 3D, 88 8F, 88 DD, 88 F8, 88 D3"},
    {"carousel", "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 88 84, 88 B6, 88 BA, 88 8C, 88 5A, 88 56, 84 A5 B6 "
                 "C8 BA AB 8C 6B 5A 48 56 65 84, A5 C1, C8 G8, AB CF, 6B 4F, 48 08, 65 41"},
    {"flower", "86 64 62 80 A2 A4 86, A7 A4 C3 F4 E7 C8 A7, A9 C8 E9 EB CD AC A9, 8A AC AE 8G 6E 6C 8A, 69 "
               "6C 4D 1C 29 48 69, 67 48 27 14 43 64 67, 86 67 69 8A A9 A7 86"},
    {"leaf", "8G 80, 80 A3 C7 C9 AC 8E 6C 49 47 63 80, 84 A6, 84 66, 87 B9, 87 59, 8A AC, 8A 6C"},
    {"fir", "81 C5 A5 D9 A9 EC 9C 9F 7F 7C 2C 69 39 65 45 81"},
});

} // namespace

std::span<const Drawing> drawings() {
    return all;
}

} // namespace velm::paint
