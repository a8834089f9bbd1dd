#include "em5/base/GameLayer.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/health/Injury.h"
#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/job/JobManagers.h"
#include "qsf/message/MessageSystem.h"

namespace em5 {

void addGameLayer(qsf::Qsf& host) {
  using Kind = qsf::JobManagers::Kind;
#define EM5_ADD_JOB_MANAGER(NAME, KIND) host.getJobManagers().addJobManager("em5::Jobs::" #NAME, Kind::KIND);
  EM5_JOBS(EM5_ADD_JOB_MANAGER)
#undef EM5_ADD_JOB_MANAGER
#define EM5_NAME_MESSAGE(NAME) host.getMessageSystem().addMessageName("em5::Messages::" #NAME);
  EM5_MESSAGES(EM5_NAME_MESSAGE)
#undef EM5_NAME_MESSAGE
#define EM5_NAME_INJURY(NAME) host.getStringHashManager().registerStringHash(injury::NAME, #NAME);
  EM5_INJURIES(EM5_NAME_INJURY)
#undef EM5_NAME_INJURY
}

}
