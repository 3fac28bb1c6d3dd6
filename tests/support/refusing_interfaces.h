/// The fakes' bases for the long interfaces of the management service: every operation is refused.
#pragma once

#include "platform/refusing_interfaces.h"
#include "tests/support/com_fake.h"

namespace tqcim::testing {

using RefusingClassObject =
    tqcim::RefusingClassObject<ComFake<IWbemClassObject, IID_IWbemClassObject>>;
using RefusingServices = tqcim::RefusingServices<ComFake<IWbemServices, IID_IWbemServices>>;
using RefusingKeyList = tqcim::RefusingKeyList<ComFake<IWbemPathKeyList, IID_IWbemPathKeyList>>;
using RefusingPath = tqcim::RefusingPath<ComFake<IWbemPath, IID_IWbemPath>>;

}  // namespace tqcim::testing
