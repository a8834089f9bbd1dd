#include "em5/multiplayer/DataCacheSystem.h"

#include "em5/settings/GameSettingsGroup.h"
#include "qsf/Qsf.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Entity.h"
#include "qsf/map/Map.h"

namespace em5::multiplayer {

namespace {

constexpr unsigned int TYPE_BITS = 8;
constexpr unsigned int LENGTH_BITS = 32;
/// What stands in front of each item: entity, type, length.
constexpr std::size_t HEAD_BITS = 64 + TYPE_BITS + LENGTH_BITS;

std::string nameItem(std::uint64_t entity, std::uint32_t type) {
  const auto types = DataCacheItemFactory::getItemTypes();
  const auto known = types.find(type);
  return "the data cache item " + (known != types.end() ? known->second : std::to_string(type)) + " of entity " +
         std::to_string(entity);
}

}

void DataCacheSystem::startGame() {
  mItems.clear();
  mSinceUpdate = {};
  for (qsf::Entity* entity : qsf::Qsf::instance()->getMainMap().getEntities())
    if (auto items = DataCacheItemFactory::createItems(*entity); !items.empty())
      mItems.emplace(entity->getId(), std::move(items));
}

bool DataCacheSystem::advance(qsf::Time timePassed) {
  const qsf::UniqueInstance<GameSettingsGroup> settings;
  if (!settings) return false;
  const qsf::Time interval =
      qsf::Time::fromMilliseconds(1000 / static_cast<int>(settings->getMultiplayUpdatesPerSecond()));
  mSinceUpdate += timePassed;
  if (mSinceUpdate < interval) return false;
  // A long frame makes one update, since there is nothing in between to tell.
  mSinceUpdate -= interval;
  if (mSinceUpdate >= interval) mSinceUpdate = {};
  ++mTick;
  return true;
}

DataCacheSystem::Update DataCacheSystem::writeUpdate(std::size_t mostBytes) {
  Update update;
  for (const auto& [entity, items] : mItems) {
    for (const auto& [type, item] : items) {
      qsf::game::BitStream part;
      bool told = false;
      qsf::callGuarded(
          [&, &item = item] {
            if (!item->includeForPrepare() || !item->prepare()) return;
            item->write(part);
            told = true;
          },
          [&, entity = entity, type = type] { return nameItem(entity, type); });
      if (!told) continue;
      const std::size_t bits = HEAD_BITS + part.getNumberOfBits();
      if (bits > mostBytes * 8) {
        qsf::logMessage(qsf::LogSystem::ERROR, nameItem(entity, type) + " is too long to be sent");
        continue;
      }
      if (update.streams.empty() || update.streams.back().getNumberOfBits() + bits > mostBytes * 8)
        update.streams.emplace_back();
      qsf::game::BitStream& stream = update.streams.back();
      stream.write(entity);
      stream.write(static_cast<std::uint8_t>(type), TYPE_BITS);
      stream.write(static_cast<std::uint32_t>(part.getNumberOfBits()), LENGTH_BITS);
      stream.append(part);
      update.items.push_back({entity, part.getNumberOfBits()});
    }
  }
  return update;
}

std::vector<DataCacheSystem::Item> DataCacheSystem::readUpdate(std::uint32_t tick, qsf::game::BitStream stream) {
  std::vector<Item> done;
  const qsf::Clock clock({}, tick);
  std::uint64_t entity = 0;
  std::uint8_t type = 0;
  std::uint32_t bits = 0;
  qsf::game::BitStream part;
  while (stream.read(entity) && stream.read(type, TYPE_BITS) && stream.read(bits, LENGTH_BITS) &&
         stream.read(part, bits)) {
    const auto ofEntity = mItems.find(entity);
    if (ofEntity == mItems.end()) continue;
    const auto item = ofEntity->second.find(type);
    if (item == ofEntity->second.end()) continue;
    const bool fine =
        qsf::callGuarded([&] { item->second->read(part, clock); }, [&] { return nameItem(entity, type); });
    if (!fine) continue;
    qsf::callGuarded([&] { item->second->apply(clock); }, [&] { return nameItem(entity, type); });
    done.push_back({entity, bits});
  }
  return done;
}

}
