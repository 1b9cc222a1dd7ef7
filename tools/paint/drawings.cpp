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
    {"cuboctahedron", "80 F4 FC 8G 1C 14 80, A5 48 AB A5, 80 A5 F4, 14 48 1C, 8G AB FC"},
    {"tesseract", "11 F1 FF 1F 11, 55 B5 BB 5B 55, 11 55, F1 B5, FF BB, 1F 5B"},
    {"cube in a cube",
     "80 F4 FC 8G 1C 14 80, 84 B6 BA 8C 5A 56 84, 80 84, F4 B6, FC BA, 8G 8C, 1C 5A, 14 56, 56 88 B6, 88 8C"},
    {"impossible triangle", "3E DE 96 88 AC 2C 3E, EC 92 5A 7A 96 DE EC, 72 2C AC 9A 5A 92 72"},
    {"carbon ball", "85 67 6A AA A7 85, 85 83, 67 36, 6A 5C, AA BC, A7 D6, 61 83 A1, 18 36 24, 6F 5C 2C, EC "
                    "BC AF, E4 D6 F8, A1 61 24 18 2C 6F AF EC F8 E4 A1"},
    {"globe",
     "81 B2 D3 E5 F8 EB DD BE 8F 5E 3D 2B 18 25 33 52 81, 81 64 58 6C 8F AC B8 A4 81, 18 F8, 34 D4, 3C DC"},
    {"gem", "41 C1 F6 8F 16 41, 16 F6, 41 66 8F A6 C1, 66 81 A6"},
    {"hexagram", "80 FC 1C 80, 8G 14 F4 8G"},
    {"mystic rose",
     "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 80 F4 FC 8G 1C 14 80, C1 G8 CF 4F 08 41 C1, 80 G8 8G 08 80, C1 "
     "FC 4F 14 C1, F4 CF 1C 41 F4, 80 FC 1C 80, C1 CF 08 C1, F4 8G 14 F4, G8 4F 41 G8, 80 CF 14 G8 1C C1 8G "
     "41 FC 08 F4 4F 80, 80 8G, C1 4F, F4 1C, G8 08, FC 14, CF 41"},
    {"faceted star", "81 66 16 59 4E 8B CE B9 F6 A6 81, 81 88 8B, 66 88 CE, 16 88 B9, 59 88 F6, 4E 88 A6"},
    {"iris", "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 80 B6, C1 C8, F4 BA, G8 AB, FC 8C, CF 6B, 8G 5A, 4F "
             "48, 1C 56, 08 65, 14 84, 41 A5, 84 A5 B6 C8 BA AB 8C 6B 5A 48 56 65 84"},
    {"snowflake", "80 8G, 84 62, 84 A2, 8C 6E, 8C AE, 88 14, 56 53, 56 27, 88 F4, B6 B3, B6 E7, 88 1C, 5A "
                  "5D, 5A 29, 88 FC, BA BD, BA E9"},
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
    {"three rings", "81 62 43 45 48 69 8A A9 C8 C5 C3 A2 81, 56 36 28 1A 2C 3E 5F 8E 9C AA 98 86 56, B6 86 "
                    "78 6A 7C 8E BF DE EC FA E8 D6 B6"},
    {"atom", "F8 F9 EA CA AA 8B 6A 4A 2A 19 18 17 26 46 66 85 A6 C6 E6 F7 F8, CE BE AE 9D 8C 7B 69 58 46 45 "
             "43 42 52 62 73 84 95 A7 B8 CA CB CD CE, C2 C3 C5 C6 B8 A9 9B 8C 7D 6E 5E 4E 4D 4B 4A 58 67 75 "
             "84 93 A2 B2 C2, 87 98 89 78 87"},
    {"square spiral", "79 77 A7 AB 5B 55 C5 CD 3D 33 E3 EF 1F 11 F1"},
    {"galaxy", "88 A7 B6 B5 A4 A3 92 82 71 61, 88 95 84 74 73 63 53 44 34 25, 88 76 65 55 46 36 27 28 19 1A, "
               "88 57 48 49 39 3A 3B 4C 4D 5E, 88 69 5A 5B 6C 6D 7E 8E 9F AF, 88 7B 8C 9C 9D AD BD CC DC EB, "
               "88 9A AB BB CA DA E9 E8 F7 F6, 88 B9 C8 C7 D7 D6 D5 C4 C3 B2"},
    {"turning squares", "11 F1 FF 1F 11, 81 F8 8F 18 81, 44 C4 CC 4C 44, 84 C8 8C 48 84, 66 A6 AA 6A 66"},
    {"turning pentagons", "81 16 4E CE F6 81, 62 28 6E DC D4 62, 54 3A 8D D9 B4 54, 46 5B AC C8 94 46"},
    {"curve that fills the plane",
     "11 31 33 13 15 17 37 35 55 57 77 75 73 53 51 71 91 93 B3 B1 D1 F1 F3 D3 D5 F5 F7 D7 B7 B5 95 97 99 9B "
     "BB B9 D9 F9 FB DB DD FD FF DF BF BD 9D 9F 7F 5F 5D 7D 7B 79 59 5B 3B 39 19 1B 1D 3D 3F 1F"},
    {"triangles in triangles",
     "81 FD 1D 81, C7 8D 57 C7, A4 87 64 A4, 93 84 73 93, B6 A7 96 B6, 76 67 56 76, DA CD AA DA, C9 CA B9 "
     "C9, EC DD CC EC, BC AD 9C BC, 6A 5D 3A 6A, 59 5A 49 59, 7C 6D 5C 7C, 4C 3D 2C 4C"},
    {"branching tree", "48 C8, 44 4C, C4 CC, 24 64, 2C 6C, A4 E4, AC EC, 22 26, 62 66, 2A 2E, 6A 6E, A2 A6, "
                       "E2 E6, AA AE, EA EE"},
    {"labyrinth", "7F 3F 1D 13 31 D1 F3 FD DF 9F, 7D 5D 3B 35 53 B3 D5 DB BD 9D 9F, 7F 7D, 8B 6B 5A 56 65 A5 "
                  "B6 BA 9A 97 77"},
    {"butterfly",
     "75 63 31 11 03 05 27 78, 95 A3 D1 F1 G3 G5 E7 98, 78 49 3B 3D 4F 6E 7B, 98 C9 DB DD CF AE 9B, 75 43 24 "
     "46 77, 95 C3 E4 C6 97, 79 5A 5C 6C 7A, 99 BA BC AC 9A, 84 75 79 7B 8E 9B 99 95 84, 50 72 84 92 B0"},
    {"dragonfly", "80 61 62 73 83 93 A2 A1 80, 73 64 66 77 87 97 A6 A4 93, 75 52 11 02 04 36 76, 95 B2 F1 G2 "
                  "G4 D6 96, 76 12, 96 F2, 76 47 18 09 0B 2B 49 77, 96 C7 F8 G9 GB EB C9 97, 77 1A, 97 FA, "
                  "77 7A 7E 8G 9E 9A 97, 7A 8A 9A, 7C 8C 9C, 7E 8E 9E"},
    {"bee", "81 61 53 54 65 85 A5 B4 B3 A1 81, 65 56 58, A5 B6 B8, 65 35 15 03 12 32 54, A5 D5 F5 G3 F2 D2 "
            "B4, 57 28 0A 1C 3B 58, B7 E8 GA FC DB B8, 58 4A 4C 6F 8G AF CC CA B8, 4A 8A CA, 4C 8C CC, 5E 8E "
            "BE, 71 50, 91 B0, 58 88 B8"},
    {"ladybird", "83 63 36 29 2B 4E 6G 8G AG CE EB E9 D6 A3 83, 73 62 71 81 91 A2 93, 63 64 84 A4 A3, 71 50, "
                 "91 B0, 36 14, D6 F4, 29 09, E9 G9, 2B 0D, EB GD, 67 57 48 49 5A 6A 79 78 67, A7 B7 C8 C9 "
                 "BA AA 99 98 A7, 5C 4D 5E 6D 5C, BC CD BE AD BC, 84 8G"},
    {"spider", "88 68 5A 5D 6F 8G AF BD BA A8 88, 88 77 65 64 73 83 93 A4 A5 97 88, 66 43 34 20, A6 C3 D4 "
               "E0, 67 36 15 03, A7 D6 F5 G3, 77 48 29 1C, 97 C8 E9 FC, 68 4A 3C 2G, A8 CA DC EG, 73 62 70, "
               "93 A2 90, 8A 7B 8C 7D 8E 9D 8C 9B 8A"},
    {"scorpion", "84 74 65 57 69 8A A9 B7 A5 94 84, 66 86 A6, 68 88 A8, 74 63 42 30 50 61 52, 94 A3 C2 D0 B0 "
                 "A1 B2, 65 44 25, A5 C4 E5, 57 36 17, B7 D6 F7, 58 38 1A, B8 D8 FA, 69 4A 3C, A9 CA DC, 7A "
                 "7C 8E AG CG EE EB D9 CB CD BE AD 9C 9A, 7C 9C, 8E AD, AG BE, EE CD, EB CB"},
    {"crab", "86 66 38 3A 5C 8C BC DA D8 A6 86, 38 16 13, D8 F6 F3, 13 02 10 32 13, F3 G2 F0 D2 F3, 02 22, "
             "G2 E2, 39 18 0A, D9 F8 GA, 3A 1B 0D, DA FB GD, 4B 2D 1F, CB ED FF, 66 64, A6 A4, 64 53 62 73 "
             "64, A4 B3 A2 93 A4, 6A 8A AA, 58 68, B8 A8"},
    {"turtle", "84 64 46 38 3A 4C 6E 8E AE CC DA D8 C6 A4 84, 86 67 69 8A A9 A7 86, 84 86 84, 67 46, A7 C6, "
               "69 4C, A9 CC, 8A 8E 8A, 74 72 80 92 94, 46 33 11 02 14 37, C6 D3 F1 G2 F4 D7, 4C 3C 1F 3G 5E "
               "5D, CC DC FF DG BE BD, 8E 8G 8E"},
    {"ray", "83 73 72 61 62 53 45 17 08 29 59 6A 7C 8D 9C AA B9 E9 G8 F7 C5 B3 A2 A1 92 93 83, 53 65 58 59, "
            "B3 A5 B8 B9, 45 48 29, C5 C8 E9, 36 28, D6 E8, 75 65, 95 A5, 76 66, 96 A6, 77 67, 97 A7, 79 7B, "
            "99 9B, 8D 8G"},
    {"octopus", "59 47 35 33 51 80 B1 D3 D5 C7 B9, 54 64 65 55 54, B4 A4 A5 B5 B4, 77 88 97, 59 37 16 04 13 "
                "24, B9 D7 F6 G4 F3 E4, 5A 3A 19 08 07, BA DA F9 G8 G7, 6A 4C 2C 1B, AA CC EC FB, 6B 5D 3E "
                "2G, AB BD DE EG, 7B 7D 6F 5G 4G, 9B 9D AF BG CG, 59 6B 8C AB B9"},
    {"jellyfish", "80 51 33 17 19 38 59 78 89 98 B9 D8 F9 F7 D3 B1 80, 58 63 80 A3 B8, 33 55 78, D3 B5 98, "
                  "19 2B 1D 2F, F9 EB FD EF, 38 3A 4C 3E 4G, D8 DA CC DE CG, 59 5B 6D 5F, B9 BB AD BF, 78 7A "
                  "6C 7E 7G, 98 9A AC 9E 9G, 89 8C 9E 8G"},
    {"two fish", "G7 E3 A1 61 33 36 65 96 C7 G7, 34 02 05 08 36, C3 C4, E5 D5, A1 92 93 A6, 72 63 64 75, 09 "
                 "2D 6F AF DD DA AB 7A 49 09, DC GE GB G8 DA, 4D 4C, 2B 3B, 6F 7E 7D 6A, 9E AD AC 9B"},
    {"nautilus", "99 A9 AA AA AB 9C 9C 8C 7C 6B 5A 59 68 77 86 96 B7 C8 DA DB CD BF 9G 6G 4F 2D 1B 17 24 42 "
                 "70 B0 F1, C8 A9, DA AA, DB AA, CD AB, BF 9C, 9G 9C, 6G 8C, 4F 7C, 2D 6B, 1B 5A, 17 59, 24 "
                 "68, 42 77, 70 86, B0 96, F1 B7"},
    {"snake",
     "A2 C4 E5 F7 FA EC CE AF 7F 5E 3D 1B 18 16 23 42, A3 C4 D6 D8 D9 CB AC 9C 7C 6C 5B 4A 48 47 55 64, D6 "
     "F7, D8 FA, D9 EC, CB CE, AC AF, 9C 7F, 7C 5E, 6C 3D, 5B 1B, 4A 18, 48 16, 47 23, 55 42, FA CB, EC AC, "
     "CE 9C, AF 7C, 7F 6C, 5E 5B, 3D 4A, 1B 48, 18 47, 16 55, 23 64, 42 50 70 A2 93 74 65 64, 61 71, 73 73"},
    {"bat", "85 75 73 65 53 20 04 07 28 2A 49 5C 7A 8C 9A BC C9 EA E8 G7 G4 E0 B3 A5 93 95 85, 64 20, A4 E0, "
            "65 07, A5 G7, 66 2A, A6 EA, 67 5C, A7 BC, 75 77 88 97 95"},
    {"swallow", "80 71 72 63 43 32 11 05 26 47 68 6B 4G 7D 8C 9D CG AB A8 C7 E6 G5 F1 D2 C3 A3 92 91 80, 63 "
                "66 68, A3 A6 A8, 43 47, C3 C7, 32 26, D2 E6, 12 25, F2 E5, 66 8A A6, 6B 8C AB"},
    {"peacock", "8C 2A, 3A 2B 0B 0A 29 39 3A, 8C 27, 38 28 08 16 26 37 38, 8C 35, 46 36 24 23 44 45 46, 8C "
                "53, 54 44 42 52 63 64 54, 8C 83, 84 73 71 91 93 84 84, 8C B3, A4 A3 B2 C2 C4 B4 A4, 8C D5, "
                "C5 C4 E3 E4 D6 C6 C5, 8C E7, D7 E6 F6 G8 E8 D8 D7, 8C EA, D9 E9 GA GB EB DA D9, 85 75 76 78 "
                "6A 6C 7E 8F 9E AC AA 98 96 95 85, 7E 6G, 9E AG, 85 94 A3, 85 74 63, 77 88 97"},
    {"owl", "83 63 31 34 27 2A 4E 6G 8G AG CE EA E7 D4 D1 A3 83, 84 64 45 47 68 88 A8 C7 C5 A4 84, 65 56 67 "
            "76 65, A5 B6 A7 96 A5, 87 78 89 98 87, 4A 6C 5E 4E, CA AC BE CE, 27 49 4E, E7 C9 CE, 7B 8C 9B, "
            "7D 8E 9D, 7A 8A 9A"},
    {"fox", "8G 6F 3C 08 14 20 54 84 B4 E0 F4 G8 DC AF 8G, 54 23 36, B4 E3 D6, 84 87 84, 14 36 58 7D 8E 9D "
            "B8 D6 F4, 36 3C, D6 DC, 67 57 68 78 67, A7 B7 A8 98 A7, 7F 7D, 9F 9D"},
    {"cat", "8F 4D 29 21 65 85 A5 E1 E9 CD 8F, 48 57 68 59 48, 8B 6C, 3B 1A, 4C 1D, C8 B7 A8 B9 C8, 8B AC, "
            "DB FA, CC FD, 7A 9A 8B 7A"},
    {"lion", "80 92 B1 C3 E3 E5 G6 E8 GA EB ED CD BF 9E 8G 7E 5F 4D 2D 2B 0A 28 06 25 23 43 51 72 80, 83 63 "
             "45 48 5B 7D 8D 9D BB C8 C5 A3 83, 63 52 43 45, A3 B2 C3 C5, 56 66 77 57 56, B6 A6 97 B7 B6, 79 "
             "89 99, 79 8A 99, 6B 8B 8A 8B AB, 5A 38, BA D8, 6A 4A, AA CA, 75 78, 95 98"},
    {"rabbit", "86 75 71 60 50 41 45 56 38 3B 4E 6G 8G AG CE DB D8 B6 C5 C1 B0 A0 91 95 86, 51 55, B1 B5, 61 "
               "65, A1 A5, 59 69 6A 5A 59, B9 A9 AA BA B9, 8C 7B 8B 9B 8C, 6E 8D 8C 8D AE, 6C 1B, AC FB, 6C "
               "1D, AC FD, 7D 7F 8F 9F 9D"},
    {"elephant", "7A 6A 5A 4B 2C 09 04 12 43 61 81 A1 C3 F2 G4 G9 EC CB BA AA 9A, 43 46 47 5A, C3 C6 C7 BA, "
                 "7A 7G 8G 9G 9A, 66 76 77 67 66, A6 96 97 A7 A6, 7C 8C 9C, 7E 8E 9E, 33 16 2A 49, D3 F6 EA "
                 "C9, 6A 6C 4E 3D, AA AC CE DD"},
    {"skull", "80 50 22 15 19 3B 4C 4F 6G 8G AG CF CC DB F9 F5 E2 B0 80, 35 54 65 67 58 38 27 35, D5 B4 A5 "
              "A7 B8 D8 E7 D5, 88 79 7A 8A 9A 99 88, 4D 8D CD, 6D 6G, AD AG, 8D 8G"},
    {"heart", "8F 19 14 32 52 85 B2 D2 F4 F9 8F, 8B 58 56 65 88 A5 B6 B8 8B"},
    {"cogwheel", "73 71 91 93 B3 C2 E4 D5 D7 F7 F9 D9 DB EC CE BD 9D 9F 7F 7D 5D 4E 2C 3B 39 19 17 37 35 24 "
                 "42 53 73, 75 95 B7 B9 9B 7B 59 57 75"},
    {"two notes", "5D 54 D2 DB, 56 D4, 5D 4C 2C 1D 1E 2F 4F 5E 5D, DB CA AA 9B 9C AD CD DC DB"},
    {"clover", "88 66 63 72 83 92 A3 A6 88, 88 A6 D6 E7 D8 E9 DA AA 88, 88 AA AD 9E 8D 7E 6D 6A 88, 88 6A 3A "
               "29 38 27 36 66 88"},
    {"pinwheel", "88 81 C4 88, 88 F8 CC 88, 88 8F 4C 88, 88 18 44 88"},
    {"rocket", "80 61 54 5C 6D 8D AD BC B4 A1 80, 54 84 B4, 86 76 67 68 79 89 99 A8 A7 96 86, 5A 8A BA, 5C "
               "8C BC, 59 3B 1E 1G 5C, B9 DB FE FG BC, 6D 5F 7E 8G 9E BF AD, 7D 7E, 9D 9E"},
    {"robot", "80 82 80, 70 80 90, 82 42 48 88 C8 C2 82, 54 74 76 56 54, B4 94 96 B6 B4, 57 87 B7, 67 68, A7 "
              "A8, 44 34 36 46, C4 D4 D6 C6, 78 79, 98 99, 89 39 3E 8E DE D9 89, 39 19 0B 0E 2E 2B 19, D9 F9 "
              "GB GE EE EB F9, 5E 5F 4F 4G 7G 7E, BE BF CF CG 9G 9E, 5A 8A BA, 5A 5C 8C BC BA, 7A 7C, 9A 9C"},
    {"web", "86 66 68 6A 8A AA A8 A6 86, 83 55 38 5B 8D BB D8 B5 83, 81 33 18 3D 8F DD F8 D3 81, 88 81, 88 "
            "33, 88 18, 88 3D, 88 8F, 88 DD, 88 F8, 88 D3"},
    {"carousel", "80 C1 F4 G8 FC CF 8G 4F 1C 08 14 41 80, 88 84, 88 B6, 88 BA, 88 8C, 88 5A, 88 56, 84 A5 B6 "
                 "C8 BA AB 8C 6B 5A 48 56 65 84, A5 C1, C8 G8, AB CF, 6B 4F, 48 08, 65 41"},
    {"flower", "86 64 62 80 A2 A4 86, A7 A4 C3 F4 E7 C8 A7, A9 C8 E9 EB CD AC A9, 8A AC AE 8G 6E 6C 8A, 69 "
               "6C 4D 1C 29 48 69, 67 48 27 14 43 64 67, 86 67 69 8A A9 A7 86"},
    {"leaf", "8G 80, 80 A3 C7 C9 AC 8E 6C 49 47 63 80, 84 A6, 84 66, 87 B9, 87 59, 8A AC, 8A 6C"},
    {"fir", "80 64 74 48 68 2D 8D ED A8 C8 94 A4 80, 7D 7G 8G 9G 9D, 64 86 A4, 48 8A C8, 6B 5C 6D 7C 6B, AB "
            "BC AD 9C AB, 3C 5A, DC BA"},
    {"sunflower",
     "84 92 A0 B2 A5 C3 E3 E5 C7 E7 G8 E9 C9 EB ED CD AB BE AG 9E 8C 7E 6G 5E 6B 4D 2D 2B 49 29 08 27 47 25 "
     "23 43 65 52 60 72 84, 84 A5 C7 C9 AB 8C 6B 49 47 65 84, 86 A7 A9 8A 69 67 86, 86 84, 86 A5, A7 C7, A7 "
     "A5, A9 C9, A9 AB, 8A 8C, 8A AB, 69 49, 69 6B, 67 47, 67 65, 86 88, A7 88, A9 88, 8A 88, 69 88, 67 88"},
    {"castle", "49 59 56 46 47 37 36 26 27 17 16 06 09 19 1G 8G FG F9 G9 G6 F6 F7 E7 E6 D6 D7 C7 C6 B6 B9 "
               "C9, 49 59 5A 6A 69 7A 8A 9A A9 AA BA B9 C9, 49 4G, C9 CG, 56 55 65 62 61 71 72 82 92 91 A1 "
               "A2 A5 B5 B6, 65 6A, A5 AA, 82 80 82, 6G 6D 7C 8C 9C AD AG, 2A 2C 3C 3A 2A, EA EC DC DA EA, "
               "74 76 86 96 94, 54 65, B4 A5, 1D 4D, FD CD, 80 A1 81"},
    {"ship", "1B 3G DG FB 1B, 2D ED, 41 4B, B0 BB, 33 53 66 26 33, 17 67 7A 0A 17, A2 C2 E5 95 A2, 96 E6 FA "
             "8A 96, 41 62 43, B0 D1 B2, FB G8, 4E 5E, 7E 8E, AE BE"},
    {"anchor", "80 70 61 62 73 83 93 A2 A1 90 80, 73 74 34 36 76, 93 94 D4 D6 96, 76 7E 5D 3B 4A 17 0B 2C 5F "
               "8G BF EC GB F7 CA DB BD 9E 96, 74 84 94, 76 86 96"},
    {"balloon", "80 50 32 25 38 6C 8C AC D8 E5 D2 B0 80, 7C 68 55 61 80 A1 B5 A8 9C, 25 55 85 B5 E5, 38 68 "
                "88 A8 D8, 6C 6E 6G 8G AG AE AC, 7C 7E 6E, 9C 9E AE, 7E 8E 9E, 32 62, D2 A2, 80 8E"},
    {"airplane", "80 71 75 0A 0C 79 7D 4F 4G 8F CG CF 9D 99 GC GA 95 91 80, 38 36 46 47, D8 D6 C6 C7, 72 82 "
                 "92, 77 87 97, 79 89 99, 4A 4B, CA CB"},
    {"space station", "75 74 54 50 B0 B4 94 95, 52 B2, 70 74, 90 94, 84 85, B7 C7 C5 G5 GB CB C9 B9, E5 EB, "
                      "G7 C7, G9 C9, C8 B8, 9B 9C BC BG 5G 5C 7C 7B, BE 5E, 9G 9C, 7G 7C, 8C 8B, 59 49 4B 0B "
                      "05 45 47 57, 2B 25, 09 49, 07 47, 48 58, 75 95 B7 B9 9B 7B 59 57 75, 77 97 99 79 77"},
    {"saucer", "82 62 44 37 57 88 B7 D7 C4 A2 82, 37 18 0A 2C 5D 8D BD EC GA F8 D7, 0A 5A 8B BA GA, 2C 5C, "
               "EC BC, 44 64 84 A4 C4, 3D 1G, DD FG, 6D 5G, AD BG, 38 48 49 39 38, D8 C8 C9 D9 D8, 69 79 7A "
               "6A 69, A9 99 9A AA A9, 82 80"},
    {"invader", "52 42 41 51 52 62 63 83 A3 A2 B2 B1 C1 C2 B2, 63 53 54 44 45 35 36 26 28 18 1C 2C 29 39 3C "
                "4C 4D 7D 7E, A3 B3 B4 C4 C5 D5 D6 E6 E8 F8 FC EC E9 D9 DC CC CD 9D 9E, 4C 4B 8B 8A 8B CB "
                "CC, 56 76 78 58 56, B6 96 98 B8 B6"},
    {"windmill", "88 80, 81 31 34 84, 51 54, 82 32, 83 33, 67 78, 88 G8, F8 F3 C3 C8, F5 C5, E8 E3, D8 D3, "
                 "96 87, 88 8G, 8F DF DC 8C, BF BC, 8E DE, 8D DD, A9 98, 88 08, 18 1D 4D 48, 1B 4B, 28 2D, "
                 "38 3D, 7A 89, 66 A6 AA 6A 66"},
    {"bicycle",
     "3E 5D 6B 59 38 19 0B 1D 3E, 3E 38, 5D 19, 6B 0B, 59 1D, DE FD GB F9 D8 B9 AB BD DE, DE D8, FD B9, GB "
     "AB, F9 BD, 3B 66 C6 8B 3B, 66 8B, 65 66, 55 75, DB C6 C4 E4 E5, 7B 8A 9B 8C 7B, 8A 79, 8C 9D"},
    {"clock", "80 B1 E2 F5 G8 FB EE BF 8G 5F 2E 1B 08 15 22 51 80, 81 B2 D3 E5 F8 EB DD BE 8F 5E 3D 2B 18 25 "
              "33 52 81, 83 81, A4 B2, C6 E5, D8 F8, CA EB, AC BE, 8D 8F, 6C 5E, 4B 2B, 38 18, 46 25, 54 52, "
              "88 83 74, 83 94, 88 BA, 77 97 99 79 77"},
    {"cassette", "02 G2 GE 0E 02, 14 F4 FA 1A 14, 2E 4B CB EE, 35 55 67 68 59 39 28 27 35, B5 D5 E7 E8 D9 B9 "
                 "A8 A7 B5, 46 48, 37 57, C6 C8, B7 D7, 66 A6, 69 A9, 5D 6D, AD BD"},
    {"floppy disk", "22 C2 E4 EE 2E 22, 52 56 B6 B2, 93 A3 A5 95 93, 4E 49 C9 CE, 5A BA, 5C BC, 3D 3C"},
    {"joystick", "81 61 52 54 65 85 A5 B4 B2 A1 81, 75 7A, 95 9A, 4A 8A CA, 4A 2B 1F 1G 8G FG FF EB CA, 2B "
                 "5B 8C BB EB, 1F 8F FF, 3C 5C 5D 3D 3C, DC BC BD DD DC, 5B 69 79, BB A9 99"},
    {"helix", "C0 B1 92 73 54 45 56 67 88 A9 BA CB BC 9D 7E 5F 4G, 40 51 72 93 B4 C5 B6 A7 88 69 5A 4B 5C 7D "
              "9E BF CG, C0 40, B1 51, 92 72, 73 93, 54 B4, 45 C5, 56 B6, 67 A7, A9 69, BA 5A, CB 4B, BC 5C, "
              "9D 7D, 7E 9E, 5F BF, 4G CG"},
});

constexpr auto ornamentsOnly = std::to_array<Drawing>({
    {"two tetrahedra", "80 FC 1C 80, 8G 14 F4 8G, 80 F4 FC 8G 1C 14 80"},
    {"eight cubes", "81 33 18 3D 8F DD F8 D3 81, 81 3D F8 33 8F D3 18 DD 81"},
    {"prism", "1E 54 9E 1E, 7B B1 FB 7B, 1E 7B, 54 B1, 9E FB"},
    {"double pyramid", "81 D9 8F 39 81 6B 8F, 81 A7 8F, 39 6B D9 A7 39"},
    {"pentagram", "81 4E F6 16 CE 81"},
    {"sharp heptagram", "81 5E D4 1A FA 34 BE 81"},
    {"enneagram", "81 6F C3 2C F7 17 EC 43 AF 81"},
    {"three squares", "80 G8 8G 08 80, C1 FC 4F 14 C1, F4 CF 1C 41 F4"},
    {"complete seven", "81 34 1A 5E BE FA D4 81, 81 1A BE D4 34 5E FA 81, 81 5E D4 1A FA 34 BE 81"},
    {"north star", "81 A6 F8 AA 8F 6A 18 66 81, 81 8F, 18 F8, 66 AA, A6 6A"},
    {"compass rose", "81 97 F8 99 8F 79 18 77 81, C4 97, C4 B8, CC 99, CC 8B, 4C 79, 4C 58, 44 77, 44 85"},
    {"sun", "75 95 B7 B9 9B 7B 59 57 75, 84 81, 55 33, 48 18, 5B 3D, 8C 8F, BB DD, C8 F8, B5 D3"},
    {"woven square", "81 FC DF 31 15 8F F5 D1 3F 1C 81"},
    {"three triangles", "81 C9 49 81, 57 9E 1E 57, B7 FE 7E B7"},
    {"four leaves", "F8 F9 EA DA BA 99 88 77 65 63 62 71 81 91 A2 A3 A5 97 88 79 5A 3A 2A 19 18 17 26 36 56 "
                    "77 88 99 AB AD AE 9F 8F 7F 6E 6D 6B 79 88 97 B6 D6 E6 F7 F8"},
    {"six-sided spiral", "88 78 79 89 A9 A7 85 57 5A 8C BA C6 83 45 3B 8E DB E5 81 24"},
    {"two-armed spiral", "88 78 69 7A 9B AB BA C8 C7 B5 A4 83 63 44 26 19 2B, 88 98 A7 96 75 65 56 48 49 5B "
                         "6C 8D AD CC EA F7 E5"},
});

} // namespace

std::span<const Drawing> drawings() {
    return all;
}

std::span<const Drawing> ornaments() {
    return ornamentsOnly;
}

} // namespace velm::paint
