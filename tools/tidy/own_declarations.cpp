// A plugin that keeps clang-tidy to the project's own declarations. Without it every check is
// matched against all of the standard library and GoogleTest as well, and what it finds there is
// thrown away: that is most of the time that clang-tidy takes.
#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <clang/AST/ASTContext.h>
#include <clang/ASTMatchers/ASTMatchFinder.h>

#include <vector>

namespace {

using namespace clang;

/// Finds nothing. The translation unit is the first thing that is matched; what is in it is visited
/// after that, as far as it is in scope.
class OwnDeclarations : public tidy::ClangTidyCheck {
 public:
  using ClangTidyCheck::ClangTidyCheck;

  void registerMatchers(ast_matchers::MatchFinder* finder) override {
    finder->addMatcher(ast_matchers::translationUnitDecl(), this);
  }

  void check(const ast_matchers::MatchFinder::MatchResult& found) override {
    const SourceManager& sources = *found.SourceManager;
    std::vector<Decl*> own;
    for (Decl* declaration : found.Context->getTranslationUnitDecl()->decls()) {
      const SourceLocation place = declaration->getLocation();
      if (place.isValid() && !sources.isInSystemHeader(sources.getExpansionLoc(place))) {
        own.push_back(declaration);
      }
    }
    found.Context->setTraversalScope(own);
  }
};

class Module : public tidy::ClangTidyModule {
 public:
  void addCheckFactories(tidy::ClangTidyCheckFactories& factories) override {
    factories.registerCheck<OwnDeclarations>("tolva-own-declarations");
  }
};

const tidy::ClangTidyModuleRegistry::Add<Module> kModule("tolva", "Scope of the other checks");

}  // namespace
