// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/programme.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/frames.h"
#include "demo_run.h"

#include <set>

namespace velm::test {
namespace {

/// What the scenes of these tests say when they run.
std::string played;
PROGRAMME* keyed = nullptr;

/// Frames of a picture that is white all over, until something ends them.
void runWhite() {
    for (bool goesOn = true; goesOn;) {
        IMG_fill(demo.screen, 0xFFFFFF);
        VELM4030_postLayer();
        goesOn = VELM4030_endFrame();
    }
}

/// A scene that a key of the machine ends in its first frame.
template <void (*... keys)(PROGRAMME&)>
constexpr SCENE keyedScene(std::string_view name) {
    return {name, "", [] { (keys(*keyed), ...), runWhite(); }};
}

const SCENE a = {"a", "", [] { played += 'a'; }};
const SCENE b = {"b", "", [] { played += 'b'; }};
const SCENE c = {"c", "", [] { played += 'c'; }};

PROGRAMME programmeOf(std::initializer_list<const SCENE*> scenes) {
    PROGRAMME programme;
    for (const SCENE* scene : scenes) {
        PROGRAMME_append(programme, scene);
    }
    return programme;
}

std::string playParts(PROGRAMME& programme, int count) {
    played.clear();
    keyed = &programme;
    for (int i = 0; i < count; ++i) {
        PROGRAMME_playPart(programme);
    }
    return played;
}

class ProgrammeTest : public testing::Test {
protected:
    void SetUp() override { startDemo(); }
    void TearDown() override { headless.onFrame = nullptr; }
};

TEST_F(ProgrammeTest, TheTourShowsEverySceneOnceARound) {
    PROGRAMME tour;
    PROGRAMME_appendTour(tour);
    std::set<const SCENE*> shown;
    for (std::int32_t place = 0; place < tour.count; ++place) {
        shown.insert(PROGRAMME_at(tour, place));
        EXPECT_EQ(PROGRAMME_at(tour, place), PROGRAMME_at(tour, place + tour.count));
        EXPECT_EQ(PROGRAMME_at(tour, place), PROGRAMME_at(tour, place - tour.count));
    }
    std::set<const SCENE*> all;
    for (const SCENE& scene : SCENE_all()) {
        all.insert(&scene);
    }
    EXPECT_EQ(shown, all);
    EXPECT_EQ(tour.count, static_cast<std::int32_t>(all.size()));
    EXPECT_EQ(all.count(SCENE_find("schedule")), 0U) << "a name for the schedule, no scene";
    EXPECT_EQ(PROGRAMME_at(PROGRAMME{}, 0), nullptr);
}

TEST_F(ProgrammeTest, NamesPlayInTheirOrderForEver) {
    PROGRAMME programme = programmeOf({&b, &a, &b, &c});
    EXPECT_EQ(playParts(programme, 9), "babcbabcb");
    while (PROGRAMME_append(programme, &a)) {
    }
    EXPECT_EQ(programme.count, PROGRAMME::mostParts);
}

TEST_F(ProgrammeTest, AMixShowsEverySceneBeforeAnyComesAgainAndNoneTwiceRunning) {
    for (const std::int32_t count : {1, 2, 3, 16}) {
        PROGRAMME mix;
        for (const SCENE& scene : SCENE_all().first(static_cast<std::size_t>(count))) {
            PROGRAMME_append(mix, &scene);
            PROGRAMME_append(mix, &scene);
        }
        PROGRAMME_shuffle(mix, 7);
        ASSERT_EQ(mix.count, count) << "a scene is there once";
        std::set<std::vector<const SCENE*>> orders;
        std::set<const SCENE*> firsts;
        for (std::int32_t round = -50; round < 50; ++round) {
            std::vector<const SCENE*> order;
            for (std::int32_t i = round * count; i < (round + 1) * count; ++i) {
                order.push_back(PROGRAMME_at(mix, i));
                EXPECT_TRUE(count == 1 || PROGRAMME_at(mix, i) != PROGRAMME_at(mix, i - 1)) << i;
            }
            EXPECT_EQ(std::set(order.begin(), order.end()).size(), order.size()) << round;
            orders.insert(order);
            firsts.insert(order.front());
        }
        EXPECT_GE(orders.size(), count < 3 ? 1U : count == 3 ? 6U : 95U);
        EXPECT_GE(firsts.size(), count < 3 ? 1U : static_cast<std::size_t>(count) - 1);
    }
}

TEST_F(ProgrammeTest, KeysGoForwardsAndBackwardsFromTheSceneThatPlays) {
    const SCENE next = keyedScene<PROGRAMME_next>("next");
    const SCENE third = keyedScene<PROGRAMME_next, PROGRAMME_next, PROGRAMME_next>("third");
    const SCENE back = keyedScene<PROGRAMME_previous>("back");
    const SCENE undone = keyedScene<PROGRAMME_next, PROGRAMME_previous>("undone");
    PROGRAMME forwards = programmeOf({&next, &a, &third, &b, &b, &c});
    EXPECT_EQ(playParts(forwards, 4), "ac");
    PROGRAMME backwards = programmeOf({&back, &a, &b, &c});
    EXPECT_EQ(playParts(backwards, 2), "c") << "there is a round before the first";
    PROGRAMME twice = programmeOf({&undone, &a});
    EXPECT_EQ(playParts(twice, 3), "") << "it begins again";
    demo.paused = 1;
    PROGRAMME_next(twice);
    EXPECT_EQ(demo.paused, 0);
    demo.control = 0;
}

TEST_F(ProgrammeTest, AKeyBetweenTwoScenesEndsNoneOfThem) {
    static int drawn = 0;
    const SCENE asking = {"asking", "", [] { PROGRAMME_next(*keyed); }}; // black: nothing fades
    const SCENE counting = {"counting", "", [] { runFrames(5, [](std::int32_t) { ++drawn; }); }};
    PROGRAMME programme = programmeOf({&asking, &counting});
    IMG_fill(demo.blurImage, 0);
    playParts(programme, 2);
    EXPECT_EQ(drawn, 5);
}

TEST_F(ProgrammeTest, GoesToAPlaceAndOnFromThere) {
    static const SCENE jumping = {"j", "", [] {
                                      played += 'j';
                                      PROGRAMME_goTo(*keyed, 3), PROGRAMME_goTo(*keyed, 2);
                                      runWhite();
                                  }};
    PROGRAMME programme = programmeOf({&a, &jumping, &b, &c});
    EXPECT_EQ(PROGRAMME_placeOf(programme, &c), 3);
    EXPECT_EQ(PROGRAMME_placeOf(programme, nullptr), -1);
    programme.next = PROGRAMME_placeOf(programme, &jumping);
    EXPECT_EQ(playParts(programme, 4), "jbca") << "the last word counts";
}

constexpr std::uint32_t fade = 15; ///< frames

TEST_F(ProgrammeTest, AFewScenesGetALength) {
    PROGRAMME programme = programmeOf({SCENE_find("extra-1"), &a, SCENE_find("default")});
    const auto framesOfPart = [&programme] {
        const std::uint32_t before = demo.fps->frameCount;
        PROGRAMME_playPart(programme);
        EXPECT_EQ(demo.framesLeft, 0);
        return demo.fps->frameCount - before;
    };
    const auto endsOnABar = [&framesOfPart](std::uint32_t most) {
        const std::uint32_t frames = framesOfPart();
        EXPECT_EQ(framesIntoBar(), 0);
        EXPECT_LE(frames, most);
        EXPECT_GT(frames, most - static_cast<std::uint32_t>(barFrames));
    };
    endsOnABar(750 + fade);
    EXPECT_EQ(framesOfPart(), 0U) << "what is black already does not fade";
    endsOnABar(900 + fade);
}

TEST_F(ProgrammeTest, ScenesFadeIntoEachOther) {
    const SCENE white = {"white", "", [] { pressAt(headless.frames + 1, ' '), runWhite(); }};
    PROGRAMME fading = programmeOf({&white, &a});
    std::vector<std::uint32_t> corners;
    headless.onFrame = [&corners](const IMG& frame) { corners.push_back(frame.pixels[0]); };
    const std::int64_t begin = headless.micros;
    PROGRAMME_playPart(fading);
    EXPECT_EQ(headless.micros - begin, fade * (1000000 / 30));
    ASSERT_EQ(corners.size(), 1 + fade);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        EXPECT_EQ(corners[i], 0xFFFFFFU - 0x111111U * i) << i;
    }
    PROGRAMME alone = programmeOf({&white});
    corners.clear();
    PROGRAMME_playPart(alone);
    EXPECT_EQ(corners.size(), 1U) << "a scene on its own is left as it is";
}

} // namespace
} // namespace velm::test
