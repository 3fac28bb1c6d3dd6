/// The interfaces of the management service.
#pragma once

#include <wbemcli.h>
#include <wbemprov.h>
