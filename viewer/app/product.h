// One product's help: where it lies, its home page, its contents, its index.
#ifndef VIEWER_APP_PRODUCT_H_
#define VIEWER_APP_PRODUCT_H_

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "viewer/app/request.h"
#include "viewer/content/client_thread.h"
#include "viewer/content/contents_list.h"
#include "viewer/content/help_client.h"
#include "viewer/content/search_worker.h"
#include "viewer/web/engine.h"
#include "viewer/web/page_view.h"
#include "viewer/web/places.h"

namespace viewer {

class Product {
 public:
  /// Called in the main loop while the product lives.
  struct Listener {
    std::function<void(const std::vector<ContentsEntry>&)> on_contents;
    std::function<void(const SearchAnswer&)> on_answer;
  };

  Product(Engine& engine, ClientThread& client, std::string name,
          std::string locale, Listener listener);
  ~Product();
  Product(const Product&) = delete;
  Product& operator=(const Product&) = delete;

  /// Asks the client for the product's configuration, then calls done. Once for
  /// each product and locale.
  void Prepare(const std::string& locale, std::function<void()> done);

  /// Finds the address of a page id; done gets "" when there is no such page.
  void FindPage(const std::string& page_id,
                std::function<void(const std::string&)> done);

  /// A content folder in which a page was found: it belongs to this product.
  void Adopt(const std::string& address);

  /// The address of the home page; "" when there is none.
  std::string Home();
  bool HasFolders();

  void Search(const std::string& text);

  /// Reads what has changed on disk: the index, and once the contents.
  void Refresh();

 private:
  void OnConfiguration(const ProductHelp& help);
  void DiscoverFolders();
  void ReadStaticContents();
  void OnKept(const std::string& lines);
  void ReadLiveContents();
  void OnLiveContents(const std::string& lines);
  void OnUpdated(const std::vector<SearchHit>& titles);
  void ShowTitles();
  void ShowContents(const std::vector<ContentsEntry>& entries);
  std::string ContentsKey();

  Engine& engine_;
  ClientThread& client_;
  const std::string name_;
  std::string locale_;
  const Listener listener_;
  std::set<ContentFolder> folders_;
  std::string configured_home_;
  bool is_prepared_ = false;
  bool is_configured_ = false;
  std::vector<SearchHit> titles_;
  // The home page that was last loaded for its contents.
  std::string tried_key_;
  std::string contents_home_;
  bool has_contents_ = false;
  std::unique_ptr<PageView> live_contents_;
  std::unique_ptr<PageView> read_contents_;
  std::unique_ptr<SearchWorker> worker_;
  // Answers of the client thread may come later than the product lives.
  std::shared_ptr<Product*> self_;
};

}  // namespace viewer

#endif  // VIEWER_APP_PRODUCT_H_
