// The support library: what a program that loads the shared library writes around it, done once.
//
//   namespace support = tolva::support;
//   auto [policy, report] = support::Load<TolvaInterface::IILPClientConfiguration>("policy.xml");
//   if (!report) return Complain(report.message);
//   ...
//   if (auto saved = support::Save(*policy, "policy.xml"); !saved) return Complain(saved.message);
//
// It is a static library (CMake: tolva::support, pkg-config: tolva-support) that uses the public
// headers of the shared library and nothing else, and needs C++17.
//
// Texts are UTF-8 unless a function says otherwise. Functions may be called from any thread at any
// time; a node is used by one thread at a time, as everywhere. Nothing is thrown but
// std::bad_alloc.
#pragma once

#include <tolva/support/diagnostics.h>
#include <tolva/support/documents.h>
#include <tolva/support/errors.h>
#include <tolva/support/handles.h>
#include <tolva/support/load.h>
#include <tolva/support/save.h>
#include <tolva/support/text.h>
