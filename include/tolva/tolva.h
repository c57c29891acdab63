// Includes every public header.
#pragma once

#include <tolva/analysisdetails/analysis_details.h>
#include <tolva/ciconf/client_configuration.h>
#include <tolva/clientconfig/active_directory.h>
#include <tolva/export.h>
#include <tolva/globalconf/client_configuration.h>
#include <tolva/installconf/install_config.h>
#include <tolva/messageconf/message_catalogue.h>
#include <tolva/ngconf/client_configuration.h>
#include <tolva/node/node.h>
#include <tolva/patchhistory/patch_history.h>
#include <tolva/policy/policy.h>
#include <tolva/proxyconf/client_configuration.h>
#include <tolva/rfconf/client_configuration.h>
#include <tolva/types.h>
#include <tolva/xml/manager.h>
