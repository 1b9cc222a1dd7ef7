// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/drawings.h"

#include <array>

namespace velm::paint {

namespace {

constexpr auto all = std::to_array<Drawing>({
    {"tetrahedron", "81 EC 2C 81 88 EC, 88 2C"},
    {"cube", "81 E4 EC 8F 2C 24 81, 24 88 E4, 88 8F"},
    {"octahedron", "81 F8 8F 18 81 6A 8F A6 81, 18 6A F8 A6 18"},
    {"dodecahedron",
     "81 42 16 1A 4E 8F CE FA F6 C2 81, 84 47 6B AB C7 84, 84 81, 47 16, 6B 4E, AB CE, C7 F6"},
    {"icosahedron", "81 E4 EC 8F 2C 24 81, 84 BA 5A 84, 24 84 E4 BA 8F 5A 24, 81 84, EC BA, 2C 5A"},
    {"two tetrahedra", "81 EC 2C 81, 8F 24 E4 8F, 81 E4 EC 8F 2C 24 81"},
    {"cuboctahedron", "81 E4 EC 8F 2C 24 81, A5 48 AB A5, 81 A5 E4, 24 48 2C, 8F AB EC"},
    {"tesseract", "11 F1 FF 1F 11, 55 B5 BB 5B 55, 11 55, F1 B5, FF BB, 1F 5B"},
    {"cube in a cube",
     "81 E4 EC 8F 2C 24 81, 84 B6 BA 8C 5A 56 84, 81 84, E4 B6, EC BA, 8F 8C, 2C 5A, 24 56, 56 88 B6, 88 8C"},
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
    {"folded ribbon", "81 E4 EC 8F 2C 24 81, 81 8F, 24 EC, E4 2C, 85 B6 BA 8B 5A 56 85"},
    {"pentagram", "81 4E F6 16 CE 81"},
    {"star in a pentagon", "81 16 4E CE F6 81, 81 4E F6 16 CE 81"},
    {"hexagram", "81 EC 2C 81, 8F 24 E4 8F"},
    {"heptagram", "81 1A BE D4 34 5E FA 81"},
    {"sharp heptagram", "81 5E D4 1A FA 34 BE 81"},
    {"octagram", "81 3D F8 33 8F D3 18 DD 81"},
    {"enneagram", "81 6F C3 2C F7 17 EC 43 AF 81"},
    {"twelve points", "81 4E E5 18 EC 52 8F B2 2C F8 25 CE 81"},
    {"complete seven", "81 34 1A 5E BE FA D4 81, 81 1A BE D4 34 5E FA 81, 81 5E D4 1A FA 34 BE 81"},
    {"north star", "81 A6 F8 AA 8F 6A 18 66 81, 81 8F, 18 F8, 66 AA, A6 6A"},
    {"faceted star", "81 66 16 59 4E 8B CE B9 F6 A6 81, 81 88 8B, 66 88 CE, 16 88 B9, 59 88 F6, 4E 88 A6"},
    {"compass rose", "81 97 F8 99 8F 79 18 77 81, C4 97, C4 B8, CC 99, CC 8B, 4C 79, 4C 58, 44 77, 44 85"},
    {"throwing star", "88 B5 81 65 88, 88 BB F8 B6 88, 88 5B 8F AB 88, 88 55 18 5A 88"},
    {"sun", "75 95 B7 B9 9B 7B 59 57 75, 84 81, 55 33, 48 18, 5B 3D, 8C 8F, BB DD, C8 F8, B5 D3"},
    {"blazing sun", "81 74 52 55 25 47 18 49 2C 5B 4E 7C 8F 9C CE BB EC C9 F8 C7 E5 B5 B2 94 81, 76 96 A7 A9 "
                    "9A 7A 69 67 76"},
    {"snowflake", "81 8F, 84 62, 84 A2, 8C 6E, 8C AE, 88 24, 56 53, 56 27, 88 E4, B6 B3, B6 E7, 88 2C, 5A "
                  "5D, 5A 29, 88 EC, BA BD, BA E9"},
    {"frost star", "84 B6 BA 8C 5A 56 84, 86 A7 A9 8A 69 67 86, 81 8F, 83 61, 83 A1, 8D 6F, 8D AF, 88 24, 35 "
                   "33, 35 16, 88 E4, D5 D3, D5 F6, 88 2C, 3B 3D, 3B 1A, 88 EC, DB DD, DB FA"},
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
    {"two links", "43 83 A5 A9 8B 4B 29 25 43, 85 C5 E7 EB CD 8D 6B 67 85"},
    {"four leaves", "F8 F9 EA DA BA 99 88 77 65 63 62 71 81 91 A2 A3 A5 97 88 79 5A 3A 2A 19 18 17 26 36 56 "
                    "77 88 99 AB AD AE 9F 8F 7F 6E 6D 6B 79 88 97 B6 D6 E6 F7 F8"},
    {"square spiral", "79 77 A7 AB 5B 55 C5 CD 3D 33 E3 EF 1F 11 F1"},
    {"six-sided spiral", "88 78 79 89 A9 A7 85 57 5A 8C BA C6 83 45 3B 8E DB E5 81 24"},
    {"three-sided spiral", "88 79 99 86 6A BA 85 4B CB 83 3C EC 82"},
    {"snail-shell spiral", "88 89 99 98 97 96 86 76 66 67 58 69 6A 7B 8B 9B AA B9 C8 C6 B5 A4 84 64 55 46 38 "
                           "3A 4C 6D 8E AD CC EA E8 E6 D3 B2 81"},
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
    {"squares in a square", "11 F1 FF 1F 11, 66 A6 AA 6A 66, 33 43 44 34 33, C3 D3 D4 C4 C3, 3C 4C 4D 3D 3C, "
                            "CC DC DD CD CC, 77 99, 97 79, 81 86, 8A 8F, 18 68, A8 F8"},
    {"heart", "8F 19 14 32 52 85 B2 D2 F4 F9 8F, 8B 58 56 65 88 A5 B6 B8 8B"},
    {"lemniscate", "F8 FA EB DB CB AA 88 66 55 35 25 16 18 1A 2B 3B 4B 6A 88 A6 C5 D5 E5 F6 F8"},
    {"day and night",
     "81 B2 D3 E5 F8 EB DD BE 8F 5E 3D 2B 18 25 33 52 81, 81 A2 B4 A7 88 69 5C 6E 8F, 85 84, 8C 8B"},
    {"eye of the triangle", "81 FE 1E 81, 4B 69 A9 CB AD 6D 4B, 8A 9B 8C 7B 8A, 88 86"},
    {"crescent and star", "C3 92 53 26 2A 5D 9E CD 8C 69 67 84 C3, C6 D7 E8 D9 CA B9 A8 B7 C6"},
    {"lightning", "A1 39 79 6F D6 96 C1 A1"},
    {"cogwheel", "73 71 91 93 B3 C2 E4 D5 D7 F7 F9 D9 DB EC CE BD 9D 9F 7F 7D 5D 4E 2C 3B 39 19 17 37 35 24 "
                 "42 53 73, 75 95 B7 B9 9B 7B 59 57 75"},
    {"anchor", "81 A3 85 63 81, 85 8F, 58 B8, 39 2A 2C 5E 8F BE EC EA D9, 1C 2A 4B, FC EA CB"},
    {"crown", "2D 14 59 82 B9 F4 ED 2D, 3B DB, 82 81, 14 13, F4 F3"},
    {"hourglass", "31 D1 D3 88 DD DF 3F 3D 88 33 31, 33 D3, 3D DD, 88 8D"},
    {"two notes", "5D 54 D2 DB, 56 D4, 5D 4C 2C 1D 1E 2F 4F 5E 5D, DB CA AA 9B 9C AD CD DC DB"},
    {"peace", "81 B2 D3 E5 F8 EB DD BE 8F 5E 3D 2B 18 25 33 52 81, 81 8F, 88 3D, 88 DD"},
    {"clover", "88 66 63 72 83 92 A3 A6 88, 88 A6 D6 E7 D8 E9 DA AA 88, 88 AA AD 9E 8D 7E 6D 6A 88, 88 6A 3A "
               "29 38 27 36 66 88"},
    {"helm", "63 A3 D6 DA AD 6D 3A 36 63, 76 96 A7 A9 9A 7A 69 67 76, 81 86, F8 A8, 8F 8A, 18 68, D3 97, DD "
             "99, 3D 79, 33 77"},
    {"pinwheel", "88 81 C4 88, 88 F8 CC 88, 88 8F 4C 88, 88 18 44 88"},
    {"propeller", "88 65 62 81 A2 A5 88, 88 C8 E9 EB CD AB 88, 88 6B 4D 2C 29 48 88"},
    {"key", "81 A3 A5 87 65 63 81, 87 8F, 8F BF BD, 8C AC"},
    {"paper boat", "1A FA BE 5E 1A, 5A 82 BA, 82 8A"},
    {"rocket", "5D 57 64 81 A4 B7 BD, 5D BD, 59 2D 2F 5D, B9 ED EF BD, 87 96 85 76 87, 7D 8F 9D"},
    {"saucer", "1A 48 C8 FA CC 4C 1A, 58 56 74 94 B6 B8, 3A 4A, 7A 9A, CA DA, 5C 3F, BC DF, 8C 8F"},
    {"ringed planet", "83 64 46 38 4A 6C 8D AC CA D8 C6 A4 83, F5 E5 D5 B5 95 76 57 38 29 1A 1B 2B 3B 5B 7B "
                      "9A B9 D8 E7 F6 F5"},
    {"mast", "81 84 4F, 84 CF, 77 97, 6A AA, 5D BD, 77 AA 5D, 97 6A BD, 64 53 52 61, 45 34 31 40, A4 B3 B2 "
             "A1, C5 D4 D1 C0"},
    {"robot", "35 D5 DC 3C 35, 81 85, 71 91, 57 77 79 59 57, 97 B7 B9 99 97, 5B BB, 38 18 1B, D8 F8 FB, 5C "
              "5F 7F, BC BF 9F"},
    {"floppy", "11 D1 F3 FF 1F 11, 41 46 C6 C1, A2 A5, 3F 39 D9 DF, 5B BB, 5D BD"},
    {"cassette", "13 F3 FD 1D 13, 35 D5 DA 3A 35, 57 68 59 48 57, B7 C8 B9 A8 B7, 5D 6B AB BD"},
    {"balloon", "6B 37 34 61 A1 D4 D7 AB 6B, 81 65 66 7B, 81 A5 A6 9B, 6B 6D, AB AD, 6D AD 9F 7F 6D"},
    {"visitor", "42 65, 85 45 28 3B 8B, 28 1A 1D, 4B 4E 6E 6B, 57 67 69 59 57, C2 A5, 85 C5 E8 DB 8B, E8 FA "
                "FD, CB CE AE AB, B7 A7 A9 B9 B7"},
    {"fish", "18 44 84 C8 8C 4C 18, C8 F4 E8 FC C8, 47 57 58 48 47, 64 91 A6, 6C 9E AA, 87 98 89"},
    {"butterfly", "87 53 21 12 16 58 88, 88 5A 2B 2E 5F 89, 85 61, 43 45, 87 B3 E1 F2 F6 B8 88, 88 BA EB EE "
                  "BF 89, 85 A1, C3 C5"},
    {"bird", "14 35 68 A2 B6 F1 D9 9C 6E 7B 4A 35"},
    {"cat", "8F 4D 29 21 65 85 A5 E1 E9 CD 8F, 48 57 68 59 48, 8B 6C, 3B 1A, 4C 1D, C8 B7 A8 B9 C8, 8B AC, "
            "DB FA, CC FD, 7A 9A 8B 7A"},
    {"snail", "1E CE E9 F5, E9 C5, 3E 29 25 52 92 B5 B9 9B 6B 49 46 64 84 96 97 88 77"},
    {"spider", "86 A8 AA 8C 6A 68 86, 86 75 84 95 86, 68 44 21, 69 37 14, 6A 3A 1C, 7B 5D 4F, A8 C4 E1, A9 "
               "D7 F4, AA DA FC, 9B BD CF"},
    {"web", "86 66 68 6A 8A AA A8 A6 86, 83 55 38 5B 8D BB D8 B5 83, 81 33 18 3D 8F DD F8 D3 81, 88 81, 88 "
            "33, 88 18, 88 3D, 88 8F, 88 DD, 88 F8, 88 D3"},
    {"crab", "87 57 39 5C 8C, 67 65, 48 25 22 41, 22 24 43, 3A 1B, 4B 2E, 5C 5F, 87 B7 D9 BC 8C, A7 A5, C8 "
             "E5 E2 C1, E2 E4 C3, DA FB, CB EE, BC BF"},
    {"jellyfish",
     "18 15 51 81 B1 F5 F8, 18 49 68 89 A8 C9 F8, 39 3B 2D 3F, 69 6C 5D 6F, D9 DB ED DF, A9 AC BD AF, 89 8F"},
    {"bee", "8F 6D 5A 67 86 A7 BA AD 8F, 5A BA, 6D AD, 86 75 74 83 94 95 86, 83 61, 67 36 14 13 32 52 76, 68 "
            "39 2B 3C 5B, 83 A1, A7 D6 F4 F3 D2 B2 96, A8 D9 EB DC BB"},
    {"ghost", "2E 26 52 81 B2 E6 EE CC AE 8C 6E 4C 2E, 56 66 68 58 56, B6 A6 A8 B8 B6, 7A 9A 9B 7B 7A"},
    {"owl", "8F 4D 27 21 53 83 B3 E1 E7 CD 8F, 56 65 76 77 68 57 56, 4D 3F, B6 A5 96 97 A8 B7 B6, CD DF, 79 "
            "8B 99 79, 5B 6D, BB AD"},
    {"turtle", "84 B6 BA 8C 5A 56 84, 84 8C, 56 BA, B6 5A, 74 72 81 92 94, 56 43 25 37 57, 5A 3A 2C 4D 6B, "
               "B6 C3 E5 D7 B7, BA DA EC CD AB, 8C 8E"},
    {"rabbit",
     "8F 4D 39 56 41 61 76 86 96 A1 C1 B6 D9 CD 8F, 59 69 6A 5A 59, B9 A9 AA BA B9, 7C 9C 8D 7C, 8D 8E"},
    {"dragonfly", "82 93 84 73 82, 84 95 98 8F 78 75 84, 75 32 11 14 46 76, 77 48 1A 2C 4B 78, 95 D2 F1 F4 "
                  "C6 96, 97 C8 FA EC CB 98"},
    {"octopus", "48 44 62 81 A2 C4 C8, 48 2A 2C 1D, 69 5C 4F, 7A 7D 6F, C8 EA EC FD, A9 BC CF, 9A 9D AF, 48 "
                "69 7A 9A A9 C8"},
    {"whale", "D3 E5 F3 E8 BD 5D 2B 17 45 75 B9 D6 D3, 47 48, 2B 5A, 64 62 41, 62 81, 7D 8F 9D"},
    {"fox", "8F 19 11 55 85 B5 F1 F9 8F, 48 69, 19 5B 8F, C8 A9, F9 BB 8F, 7D 9D"},
    {"flower", "86 64 62 81 A2 A4 86, A7 A4 C3 E4 E7 C8 A7, A9 C8 E9 EB CD AC A9, 8A AC AE 8F 6E 6C 8A, 69 "
               "6C 4D 2C 29 48 69, 67 48 27 24 43 64 67, 86 67 69 8A A9 A7 86"},
    {"toadstool",
     "18 F8 E5 B2 81 52 25 18, 68 6D 5F BF AD A8, 44 55 46 35 44, 84 95 86 75 84, C4 D5 C6 B5 C4"},
    {"leaf", "8F 81, 81 C4 D9 8D 39 44 81, 86 B4, 86 54, 89 C7, 89 47, 8C BA, 8C 5A"},
    {"fir", "81 C5 A5 D9 A9 EC 9C 9F 7F 7C 2C 69 39 65 45 81"},
});

} // namespace

std::span<const Drawing> drawings() {
    return all;
}

} // namespace velm::paint
