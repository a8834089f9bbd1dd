// What scripts pay for the world: conditions and effects about areas, sensors and lists, on a small map and on one of
// fifty thousand entities, each beside its floor: a plain loop over plain structs of what is found. In the first part
// eight persons stand round a unit and all others are out of range, so that the cost should stay the same on both maps;
// a plain walk over all entities stands beside it. In the second part an entry works on every entity of the map, and
// its cost for each should grow no more than that of the floor, whose entities leave the caches as well.
#include "bench/support/Benchmarks.h"
#include "bench/support/PlainWorld.h"
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/job/JobArguments.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/RayMapQuery.h"
#include "qsf/physics/BulletCollisionComponent.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <optional>

namespace {

using tidemark::bench::PlainWorld;
using tidemark::bench::Results;
using tidemark::bench::Table;

constexpr std::int64_t COUNTS[] = {1'000, 50'000};
constexpr std::uint64_t CENTER = 10; ///< a vehicle in the middle of the map
constexpr std::uint64_t SENSOR = 11; ///< an area round it
constexpr std::uint64_t MOVER = 12;  ///< a vehicle out of range, which moves
constexpr std::uint64_t FIRST_NEAR = 20;
constexpr std::uint64_t NUMBER_NEAR = 8;
constexpr std::uint64_t FIRST_FAR = 1000;
constexpr float RANGE = 100;
constexpr float NEAREST_FAR = 250;
constexpr const char* NEAR = "20 21 22 23 24 25 26 27";

void spawn(qsf::Map& map, const char* prefab, std::uint64_t id, const glm::vec3& position) {
  qsf::Entity* entity = map.createObjectByLocalPrefabAssetId(std::string("em5/prefab/test/") + prefab, id);
  entity->getComponent<qsf::TransformComponent>()->setPosition(position);
}

/// Places all over the map but near the middle, in an order without order.
std::vector<glm::vec3> makeFarPlaces(std::size_t count) {
  std::vector<glm::vec3> places;
  for (float x = -1000; x <= 1000; x += 8)
    for (float z = -1000; z <= 1000; z += 8)
      if (glm::length(glm::vec2(x, z)) > NEAREST_FAR) places.emplace_back(x, 0, z);
  std::uint32_t random = 1;
  for (std::size_t i = places.size() - 1; i > 0; --i) {
    random = random * 1664525 + 1013904223;
    std::swap(places[i], places[random % (i + 1)]);
  }
  places.resize(count);
  return places;
}

void fill(qsf::Map& map, std::int64_t count) {
  constexpr const char* PREFABS[] = {"civilian", "tree", "civil_car", "house"};
  spawn(map, "police_car", CENTER, {0, 0, 0});
  spawn(map, "sensor", SENSOR, {0, 0, 0});
  spawn(map, "tow_truck", MOVER, {300, 20, 300});
  for (std::uint64_t i = 0; i < NUMBER_NEAR; ++i)
    spawn(map, "firefighter", FIRST_NEAR + i, {static_cast<float>(i) * 2 - 8, 0, 7});
  std::uint64_t id = FIRST_FAR;
  for (const glm::vec3& place : makeFarPlaces(static_cast<std::size_t>(count))) {
    spawn(map, PREFABS[id % std::size(PREFABS)], id, place);
    ++id;
  }
}

/// The game that all benchmarks run in. Benchmarks of one size follow each other, so it is seldom made anew.
class World {
public:
  World() : mSession(em5::HostSession::Options()) {
    mSession.mountBaseProject(TIDEMARK_DATA_DIRECTORY "/em5");
    mSession.startup();
    mSession.setMapPreparation([this](qsf::Map& map) { fill(map, mCount); });
  }
  qsf::Map& of(std::int64_t count) {
    if (mCount != count) {
      mCount = count;
      mSession.startGame("em5/map/test/empty");
      mPlain.reset();
      // The first question about a class builds its grid.
      qsf::ComponentMapQuery(qsf::getMainMap())
          .getInstancesInCircleById(qsf::MetadataComponent::COMPONENT_ID, {0, 0, 0}, 1);
    }
    return qsf::getMainMap();
  }
  /// The same as plain structs.
  PlainWorld& plain(std::int64_t count) {
    const qsf::Map& map = of(count);
    if (!mPlain) {
      const auto ids = [](std::uint64_t first, std::uint64_t number) {
        PlainWorld::Ids list(number);
        std::iota(list.begin(), list.end(), first);
        return list;
      };
      mPlain.emplace(map, CENTER, SENSOR, ids(FIRST_NEAR, NUMBER_NEAR),
                     ids(FIRST_FAR, static_cast<std::uint64_t>(count)));
    }
    return *mPlain;
  }

private:
  em5::HostSession mSession;
  std::optional<PlainWorld> mPlain;
  std::int64_t mCount = 0;
};

World* world = nullptr; ///< lives in main

/// A script that runs in the world, a tick at a time.
class Script {
public:
  explicit Script(const std::string& text)
      : mDocument(
            std::make_shared<script::ScriptDocument>(script::ScriptParser().parseText(text, "bench", "bench/world"))) {
    mHandler.SetDocument(mDocument);
    mHandler.Start(script::StartKind::REALTIME);
  }
  void tick() { mHandler.Update(mArguments); }
  script::ScenarioHandler& handler() { return mHandler; }
  bool isRead(std::size_t triggers) const { return mDocument->triggers.size() == triggers; }
  std::uint64_t timesFired() const { return mDocument->triggers.back().timesFired; }

private:
  std::shared_ptr<script::ScriptDocument> mDocument;
  script::ScenarioHandler mHandler{std::make_shared<script::GlobalStores>()};
  qsf::JobArguments mArguments{qsf::Time::fromMilliseconds(50)};
};

struct Entry {
  const char* name;
  const char* lines; ///< the condition or effect that is measured
  const char* list;  ///< list by whose size the result is proved, of the floor as well; empty: none
  std::int64_t size; ///< its size; ALL: every far entity
  void (*floor)(PlainWorld& plain);
  bool isCondition = true;
};
constexpr std::int64_t ALL = -1;
constexpr std::int64_t ANY = -2; ///< no proof
constexpr bool EFFECT = false;   ///< for `isCondition`

/// Entries for which only what is near counts.
constexpr Entry LOCAL_ENTRIES[] = {
    {"UnitsInArea, 8 in range", R"(UnitsInArea("10", "8", "100", "em5/prefab/test/firefighter", "==", "out");)", "out",
     8, [](PlainWorld& plain) { plain.findPrefabInCircle(RANGE); }},
    {"IsAnyEntityInSensorArea, 8 inside", R"(IsAnyEntityInSensorArea("11", "em5::PersonComponent", "out");)", "out", 8,
     [](PlainWorld& plain) { plain.findPersonsInArea(); }},
    {"IsUnitInSensorArea, 8 inside", R"(IsUnitInSensorArea("11", "near", "out");)", "out", 8,
     [](PlainWorld& plain) { plain.findInArea(plain.near()); }},
    {"IsUnitInSensorArea, list of all, none inside", R"(!IsUnitInSensorArea("11", "all", "out");)", "out", 0,
     [](PlainWorld& plain) { plain.findInArea(plain.all()); }},
    {"DistanceToUnit, list of 8", R"(DistanceToUnit("10", "near", "100", "<", "out");)", "out", 8,
     [](PlainWorld& plain) { plain.findCloser(plain.near(), 100); }},
    {"EntityHasComponent, list of 8", R"(EntityHasComponent("near", "em5::PersonComponent", "out");)", "out", 8,
     [](PlainWorld& plain) { plain.findPersons(plain.near()); }},
    {"PickClosestUnitsFromEntityList, 3 of 8", R"(PickClosestUnitsFromEntityList("near", "out", true, "3", "10");)",
     "out", 3, [](PlainWorld& plain) { plain.pickClosest(plain.near(), 3); }, EFFECT},
    {"AddUnitsFromTypeToEntityList, 3 of 8",
     R"(AddUnitsFromTypeToEntityList("out", "PlayerPersons", true, "3", "10", "100");)", "out", 3,
     [](PlainWorld& plain) { plain.drawPersons(3, RANGE); }, EFFECT},
    {"SetTransform, there and back",
     "SetTransform(\"12\", true, \"300 20 300\");\nSetTransform(\"12\", true, \"500 20 -400\");", "", 0,
     [](PlainWorld& plain) { plain.moveThereAndBack(MOVER); }, EFFECT},
    {"SpawnObject and DestroyObject",
     "ClearEntityIdList(\"out\");\nSpawnObject(\"em5/prefab/test/civilian\", \"out\", true, \"-400 0 "
     "-404\");\nDestroyObject(\"out\");",
     "out", 1, [](PlainWorld& plain) { plain.makeAndDestroy(1); }, EFFECT},
};

/// Entries that work on every entity.
constexpr Entry WHOLE_ENTRIES[] = {
    {"GetAllEntitiesWithComponent", R"(GetAllEntitiesWithComponent("out", "qsf::BulletCollisionComponent");)", "", 0,
     [](PlainWorld& plain) { plain.listAll(); }, EFFECT},
    {"EntityHasComponent", R"(EntityHasComponent("all", "qsf::MetadataComponent", "out");)", "out", ALL,
     [](PlainWorld& plain) { plain.findKnown(plain.all()); }},
    {"DistanceToUnit", R"(DistanceToUnit("10", "all", "200", ">", "out");)", "out", ALL,
     [](PlainWorld& plain) { plain.findFarther(plain.all(), 200); }},
    {"RemoveInvalidEntitiesFromList", R"(RemoveInvalidEntitiesFromList("all");)", "all", ALL,
     [](PlainWorld& plain) { plain.findKnown(plain.all()); }, EFFECT},
    {"RemoveAllEntitiesWithoutComponent", R"(RemoveAllEntitiesWithoutComponent("all", "qsf::TransformComponent");)",
     "all", ALL, [](PlainWorld& plain) { plain.findKnown(plain.all()); }, EFFECT},
    {"PickClosestUnitsFromEntityList, 3", R"(PickClosestUnitsFromEntityList("all", "out", true, "3", "10");)", "out", 3,
     [](PlainWorld& plain) { plain.pickClosest(plain.all(), 3); }, EFFECT},
    {"PickClosestUnitsFromEntityList, all", R"(PickClosestUnitsFromEntityList("all", "out", true, "99999", "10");)",
     "out", ALL, [](PlainWorld& plain) { plain.pickClosest(plain.all(), 99999); }, EFFECT},
    {"PickUnitsFromEntityList, no such cluster", R"(PickUnitsFromEntityList("all", "out", true, "900", "90");)", "out",
     900, [](PlainWorld& plain) { plain.pickCluster(plain.all(), 900, 90); }, EFFECT},
    {"AddEntityToEntityList", "ClearEntityIdList(\"out\");\nAddEntityToEntityList(\"all\", \"out\");", "out", ALL,
     [](PlainWorld& plain) { plain.addAll(plain.all()); }, EFFECT},
};

std::string makeScript(const Entry& entry) {
  // A second condition that never holds keeps the trigger from firing, so that a condition is measured alone.
  return entry.isCondition
             ? fmt::format("InitNewTrigger(\"T\",true,true);\nInitConditions();\n{}\n"
                           "CompareValues(\"0\",\"==\",\"1\");\nInitEffects();\n",
                           entry.lines)
             : fmt::format("InitNewTrigger(\"T\",true,true);\nInitConditions();\nInitEffects();\n{}\n", entry.lines);
}

void run(benchmark::State& state, const Entry& entry) {
  qsf::Map& map = world->of(state.range(0));
  Script script(makeScript(entry));
  script::ScenarioHandler& handler = script.handler();
  for (std::uint64_t id = FIRST_NEAR; id < FIRST_NEAR + NUMBER_NEAR; ++id)
    handler.AddToEntityList(std::string("near"), id);
  for (std::int64_t i = 0; i < state.range(0); ++i)
    handler.AddToEntityList(std::string("all"), FIRST_FAR + static_cast<std::uint64_t>(i));
  for (auto _ : state) {
    script.tick();
    map.collectGarbage(); // as a frame's end does
  }
  const std::int64_t expected = entry.size == ALL ? state.range(0) : entry.size;
  const auto size = static_cast<std::int64_t>(handler.ResolveEntityList(std::string(entry.list)).size());
  if (!script.isRead(1) || (script.timesFired() == 0) != entry.isCondition || (*entry.list && size != expected))
    state.SkipWithError("the entry did not do what is measured");
}

void runFloor(benchmark::State& state, void (*floor)(PlainWorld&), std::int64_t size) {
  PlainWorld& plain = world->plain(state.range(0));
  for (auto _ : state) {
    floor(plain);
    benchmark::DoNotOptimize(plain.out.data());
    benchmark::ClobberMemory();
  }
  const std::int64_t expected = size == ALL ? state.range(0) : size;
  if (size != ANY && static_cast<std::int64_t>(plain.out.size()) != expected)
    state.SkipWithError("the floor did not find what the entry finds");
}

// The same questions to the host, without a script.

void circleQuery(benchmark::State& state) {
  const qsf::ComponentMapQuery query(world->of(state.range(0)));
  std::size_t found = 0;
  for (auto _ : state)
    found = query.getInstancesInCircleById(qsf::MetadataComponent::COMPONENT_ID, {0, 0, 0}, RANGE).size();
  if (found != NUMBER_NEAR + 2) state.SkipWithError("the query did not find what is measured"); // and centre and area
}

void linearWalk(benchmark::State& state) {
  const qsf::Map& map = world->of(state.range(0));
  std::size_t count = 0;
  for (auto _ : state) {
    std::vector<qsf::Component*> found;
    for (qsf::Component* component : map.getComponentInstances(qsf::MetadataComponent::COMPONENT_ID)) {
      const auto* transform = component->getEntity().getComponent<qsf::TransformComponent>();
      if (!transform) continue;
      const glm::vec3& position = transform->getPosition();
      if (position.x * position.x + position.z * position.z <= RANGE * RANGE) found.push_back(component);
    }
    benchmark::DoNotOptimize(found.data());
    count = found.size();
  }
  if (count != NUMBER_NEAR + 2) state.SkipWithError("the walk did not find what is measured");
}

void rayQuery(benchmark::State& state) {
  const qsf::RayMapQuery query(world->of(state.range(0)));
  const qsf::Ray ray{{-4, 40, -33}, glm::normalize(glm::vec3(0, -39, 40))};
  const qsf::Entity* entity = nullptr;
  for (auto _ : state)
    entity = query.getFirstHit(ray).entity;
  if (!entity || entity->getId() != FIRST_NEAR + 2) state.SkipWithError("the ray did not hit what is measured");
}

struct HostQuestion {
  const char* name;
  void (*function)(benchmark::State&);
  void (*floor)(PlainWorld& plain); ///< null for what is a floor itself
  std::int64_t size;                ///< of what the floor finds
};
constexpr HostQuestion HOST_QUESTIONS[] = {
    {"circle query of the host, 10 in range", &circleQuery, [](PlainWorld& plain) { plain.findInCircle(RANGE); },
     NUMBER_NEAR + 2},
    {"linear walk for the same", &linearWalk, nullptr, ANY},
    {"ray from the camera to a person", &rayQuery,
     [](PlainWorld& plain) {
       plain.hitByRay({-4, 40, -33}, glm::normalize(glm::vec3(0, -39, 40)));
     },
     1},
};

std::string floorOf(const std::string& name) { return "floor: " + name; }
std::string eachOf(const Entry& entry) { return fmt::format("each: {}", entry.name); }

void registerAll() {
  for (const std::int64_t count : COUNTS) {
    const auto add = [count](const char* name, auto&& function) {
      benchmark::RegisterBenchmark(name, function)->Arg(count)->Unit(benchmark::kMicrosecond);
    };
    const auto addFloor = [&](const std::string& name, void (*floor)(PlainWorld&), std::int64_t size) {
      if (floor) add(floorOf(name).c_str(), [=](benchmark::State& state) { runFloor(state, floor, size); });
    };
    for (const HostQuestion& question : HOST_QUESTIONS) {
      add(question.name, question.function);
      addFloor(question.name, question.floor, question.size);
    }
    const auto addEntry = [&](const std::string& name, const Entry& entry) {
      add(name.c_str(), [&entry](benchmark::State& state) { run(state, entry); });
      addFloor(name, entry.floor, *entry.list ? entry.size : ANY);
    };
    for (const Entry& entry : LOCAL_ENTRIES)
      addEntry(entry.name, entry);
    for (const Entry& entry : WHOLE_ENTRIES)
      addEntry(eachOf(entry), entry);
  }
}

Table makeTable(const Results& results) {
  using tidemark::bench::grouped;
  using tidemark::bench::oneDigit;
  const std::string few = grouped(COUNTS[0]);
  const std::string many = grouped(COUNTS[1]);
  Table table({"nanoseconds, with so many entities on the map", few, "floor", "ratio", many, "floor", "ratio"});
  const auto addRow = [&](const std::string& label, const std::string& name, bool isEach) {
    std::vector<std::string> row{label};
    for (const std::int64_t count : COUNTS) {
      const double divisor = isEach ? static_cast<double>(count) : 1;
      const double cost = results.nanoseconds(fmt::format("{}/{}", name, count)) / divisor;
      const double floor = results.nanoseconds(fmt::format("{}/{}", floorOf(name), count)) / divisor;
      for (const double value : {cost, floor})
        row.push_back(isEach ? oneDigit(value) : grouped(value));
      row.push_back(oneDigit(cost / floor));
    }
    table.add(std::move(row));
  };
  for (const HostQuestion& question : HOST_QUESTIONS)
    addRow(question.name, question.name, false);
  for (const Entry& entry : LOCAL_ENTRIES)
    addRow(entry.name, entry.name, false);
  // The walk tells what a larger map costs by itself: its entities no longer fit into the processor's caches.
  addRow("each of all: linear walk", HOST_QUESTIONS[1].name, true);
  for (const Entry& entry : WHOLE_ENTRIES)
    addRow(fmt::format("each of all: {}", entry.name), eachOf(entry), true);
  return table;
}

}

int main(int argc, char** argv) {
  World theWorld;
  world = &theWorld;
  registerAll();
  // Benchmarks of one size stay together: another size means another map.
  char inOrder[] = "--benchmark_enable_random_interleaving=false";
  std::vector<char*> arguments(argv, argv + argc);
  arguments.insert(arguments.begin() + 1, inOrder);
  return tidemark::bench::runAndPrint(static_cast<int>(arguments.size()), arguments.data(), &makeTable);
}
