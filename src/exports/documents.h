// Every document's classes.
#pragma once

#include "analysisdetails/analysis_details.h"
#include "ciconf/client_configuration.h"
#include "clientconfig/active_directory.h"
#include "globalconf/client_configuration.h"
#include "installconf/install_config.h"
#include "messageconf/message_catalogue.h"
#include "ngconf/client_configuration.h"
#include "patchhistory/patch_history.h"
#include "policy/policy.h"
#include "proxyconf/client_configuration.h"
#include "rfconf/client_configuration.h"
