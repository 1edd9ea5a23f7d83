# The targets, each with the sources of the product that its seeds are to reach.

corvana_fuzz_target(bundle PARSES
    platform/foundation/Bundle.cpp)
corvana_fuzz_target(camera_picture PARSES
    renderer/PictureNotes.cpp renderer/PictureTurn.cpp)
corvana_fuzz_target(command_line PARSES
    dialog/app/CommandLine.cpp dialog/server/ServerAddress.cpp)
corvana_fuzz_target(http_answer PARSES
    dialog/server/AnswerReader.cpp dialog/server/IppGate.cpp dialog/server/IppMessage.cpp
    dialog/server/ServerProblem.cpp)
corvana_fuzz_target(interface_file PARSES
    platform/toolkit/Bindings.cpp platform/toolkit/FrameLayout.cpp
    platform/toolkit/InterfaceLoader.cpp)
corvana_fuzz_target(ipp_capabilities PARSES
    dialog/driverless/AttributeReading.cpp dialog/driverless/CapabilityOptions.cpp
    dialog/driverless/CapabilityPapers.cpp dialog/driverless/CapabilityPpd.cpp
    dialog/driverless/CapabilityTexts.cpp dialog/driverless/PrinterCapabilities.cpp
    dialog/driverless/QueueDefaults.cpp dialog/driverless/StandardJobOptions.cpp)
corvana_fuzz_target(job_options PARSES
    dialog/session/AllowedValues.cpp dialog/session/AttributeChoices.cpp
    dialog/session/JobAttributes.cpp dialog/session/OptionRequest.cpp
    dialog/session/RequestedOptions.cpp)
corvana_fuzz_target(key_table PARSES
    platform/foundation/ForeignText.cpp platform/foundation/FormatString.cpp
    platform/foundation/StringTable.cpp)
corvana_fuzz_target(known_servers PARSES
    dialog/server/KnownServers.cpp)
corvana_fuzz_target(lpoptions PARSES
    dialog/printers/UserQueues.cpp dialog/printers/UserQueuesLine.cpp)
corvana_fuzz_target(page_ranges PARSES
    dialog/job/PageChoice.cpp dialog/sheets/PageTicks.cpp)
corvana_fuzz_target(panels PARSES
    plugin/QXJobValues.cpp plugin/QXJobValues-attributes.cpp plugin/QXJobValues-entries.cpp)
corvana_fuzz_target(panel_rules PARSES
    dialog/printers/OwnInstances.cpp dialog/printers/PanelRecognition.cpp)
corvana_fuzz_target(paper_size PARSES
    dialog/session/PaperSize.cpp)
corvana_fuzz_target(picture PARSES
    platform/toolkit/ImageView.cpp)
corvana_fuzz_target(policy_file PARSES
    dialog/policy/PolicyEntry.cpp dialog/policy/PolicyFile.cpp dialog/policy/PolicyLocks.cpp)
corvana_fuzz_target(ppd_cache PARSES
    dialog/printers/PpdCache.cpp)
corvana_fuzz_target(ppd_filters PARSES
    dialog/job/PpdFilters.cpp dialog/job/ResultFormat.cpp dialog/session/OutputOrder.cpp)
corvana_fuzz_target(ppd_session PARSES
    dialog/session/ChoiceCodes.cpp dialog/session/CustomValue.cpp dialog/session/JobTicket.cpp
    dialog/session/OptionTexts.cpp dialog/session/PpdBounds.cpp dialog/session/PpdFile.cpp
    dialog/session/PpdSession.cpp platform/printcore/Ppd.cpp)
corvana_fuzz_target(preferences PARSES
    platform/foundation/UserDefaults.cpp platform/foundation/Values.cpp)
corvana_fuzz_target(preset_file PARSES
    dialog/presets/PresetFile.cpp)
corvana_fuzz_target(renderer_answer PARSES
    renderer/protocol/MessageReading.cpp)
corvana_fuzz_target(renderer_request PARSES
    renderer/Service.cpp renderer/protocol/MessageSocket.cpp)
corvana_fuzz_target(server_jobs PARSES
    dialog/job/JobEnds.cpp dialog/job/JobRequests.cpp dialog/printers/QueueRequests.cpp)
corvana_fuzz_target(text_document PARSES
    dialog/text/TextDecoder.cpp dialog/text/TextEncoding.cpp dialog/text/TextFlow.cpp)
