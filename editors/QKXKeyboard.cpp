// SPDX-License-Identifier: BSD-3-Clause
#include "QKXKeyboard.h"

#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"

#include "CSS.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPointer>
#include <QPushButton>
#include <QRegExpValidator>
#include <QShowEvent>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QVariant>

namespace {

// Pages of the key stack, in the order of KeyBoardMode's page slots.
enum { PageLower = 0, PageUpper = 1, PageNumbers = 2, PageSymbols = 3 };

// Every page's grid is this many equal columns wide; an ordinary key takes two.
const int kxkb_columns = 22;

// The one label that is not what it types: a button shows a lone "&" for "&&".
const QString kxkb_ampersandLabel = QStringLiteral("&&");

bool kxkb_isCompactScreen()
{
    return qApp && qApp->property("-res").toString() == QLatin1String("480x800");
}

bool kxkb_isOpaque()
{
    const QVariant opaque = qApp ? qApp->property("-notransparency") : QVariant();
    return opaque.isValid() && opaque.toString() == QLatin1String("true");
}

// The frames, the echo line and the keys. The palette's border colour outlines the panel, the two
// overlays and the decorative strip.
QString kxkb_frameAndKeyRules()
{
    return QStringLiteral(
               "QFrame#MainFrame {    background-color: rgba(0,0,0,215);    border: 2px solid %1;    border-left: none;"
               "    border-radius: 18px;}"
               "QFrame#Overlay {    border: 2px solid %1;    border-right: none;    border-radius: 18px;"
               "    border-top-right-radius: 0px;    border-bottom-right-radius: 0px;}"
               "QLabel {    background-color: transparent;    border: 2px solid %1;    border-left: none;"
               "    border-top-right-radius: 9px;    border-bottom-right-radius: 9px;}"
               "QLineEdit {    background-color: transparent;    border: 2px solid white;    border-radius: 10px;"
               "    font: 40px;    min-height: 40px;    max-height: 40px;    color: white;    padding-left: 4px;"
               "    selection-color: white;    selection-background-color: black;}"
               "QPushButton {    color: white;    background-color: transparent;    border: 1px solid white;"
               "    font-size: 40px;}"
               "QPushButton:pressed {    background-color: white;    color: black;}"
               "QPushButton#kbBtn {    border-width: 1px 0px 0px 1px;}"
               "QPushButton#kbBtn:disabled {    background-color: #555;}"
               "QPushButton#kbBtnLeft {    border-width: 1px 0px 0px 1px;    border-top-left-radius: 10px;"
               "    border-bottom-left-radius: 10px;}"
               "QPushButton#kbBtnRight {    border-width: 1px 1px 0px 1px;    border-top-right-radius: 10px;"
               "    border-bottom-right-radius: 10px;}"
               "QPushButton#kbBtnRight:disabled {    background-color: #555;}"
               "QPushButton#bksp {    border-width: 1px 1px 0px 1px;    border-top-right-radius: 10px;"
               "    border-bottom-right-radius: 10px;    background-image: url(:/images/backspace.png);"
               "    background-position: right center;    background-repeat: no-repeat;}"
               "QPushButton#bksp:pressed {    background-color: white;    background-image: url(:/images/bksp_pressed.png);}"
               "QPushButton#enter {    border-width: 1px;    border-top-right-radius: 10px;"
               "    border-bottom-right-radius: 10px;    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
               " stop:0 rgba(0,255,0,170), stop:1 rgba(0,255,0,50));    font-size: 14px;    text-align: bottom;}"
               "QPushButton#enterAllRound {    border-width: 1px;    border-radius: 10px;"
               "    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgba(0,255,0,170),"
               " stop:1 rgba(0,255,0,50));    font-size: 14px;    text-align: bottom;}"
               "QPushButton#enter:pressed, QPushButton#enterAllRound:pressed {    background-color: #0b0;    color: white;}"
               "QPushButton#clear {    border-width: 1px 1px 0px 1px;    border-top-right-radius: 10px;"
               "    border-bottom-right-radius: 10px;    font-size: 14px;    text-align: bottom;}"
               "QPushButton#clearAllRound {    border-width: 1px;    border-radius: 10px;    font-size: 14px;"
               "    text-align: bottom;}"
               "QPushButton#cancelBottomRight {    border-width: 1px;    border-top-right-radius: 10px;"
               "    border-bottom-right-radius: 10px;    font-size: 14px;    text-align: bottom;}")
        .arg(CSS::border());
}

// The shift key and the keys of the bottom row, which close the outline at the bottom.
const QString kxkb_shiftAndBottomRules = QStringLiteral(
    "QPushButton#shift {    border-width: 1px 0px 0px 1px;    border-top-left-radius: 10px;"
    "    border-bottom-left-radius: 10px;    font-size: 14px;    text-align: bottom;}"
    "QPushButton#shift:pressed, QPushButton#shift:checked {    background-color: white;    color: black;}"
    "QPushButton#kbBtnBottomLeft {    border-width: 1px 0px 1px 1px;    border-top-left-radius: 10px;"
    "    border-bottom-left-radius: 10px;    font-size: 40px;}"
    "QPushButton#kbBtnBottomLeft:disabled {    background-color: #555;}"
    "QPushButton#kbBtnBottom {    border-width: 1px 0px 1px 1px;}"
    "QPushButton#kbBtnBottom:disabled {    background-color: #555;}");

// The compact keyboard's smaller captions.
const QString kxkb_compactScreenRules = QStringLiteral(
    "QPushButton {    font-size: 28px;}QPushButton#kbBtnBottomLeft {    font-size: 28px;}");

const QString kxkb_opaquePanelRule = QStringLiteral("QFrame#MainFrame{    background-color: #000;}");

// The large keys, for a host that asks for them.
const QString kxkb_maxStyle = QStringLiteral(
    "QPushButton#kbBtn {    border-width: 1px 0px 0px 1px;    font-size: 72px;}"
    "QPushButton#kbBtnLeft {    border-width: 1px 0px 0px 1px;    border-top-left-radius: 10px;"
    "    border-bottom-left-radius: 10px;    font-size: 72px;}"
    "QPushButton#kbBtnRight {    border-width: 1px 1px 0px 1px;    border-top-right-radius: 10px;"
    "    border-bottom-right-radius: 10px;    font-size: 72px;}"
    "QPushButton#shift {    font-size: 32px;    text-align: bottom;}"
    "QPushButton#bksp {    background-image: url(:/images/bksp_max.png);    background-position: center;"
    "    background-repeat: no-repeat;}"
    "QPushButton#bksp:pressed {    background-color: #b00;}"
    "QPushButton#enter {    background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgba(0,255,0,170),"
    " stop:1 rgba(0,255,0,50));    color: white;    border-top-right-radius: 10px;"
    "    border-bottom-right-radius: 10px;    font-size: 32px;    text-align: bottom;}"
    "QPushButton#enter:pressed {    background-color: #0b0;}"
    "QPushButton#kbBtn:pressed, QPushButton#kbBtnLeft:pressed, QPushButton#kbBtnRight:pressed,"
    " QPushButton#shift:pressed, QPushButton#shift:checked {    background-color: white;    color: black;}");

// One row of ordinary keys: the first column, the captions, and per key the outline it draws
// ('b' kbBtnBottomLeft, 'L' kbBtnLeft, 'R' kbBtnRight, 'B' kbBtnBottom, '.' kbBtn).
struct KeyRow {
    int row;
    int firstColumn;
    QStringList captions;
    const char *outlines;
};

QString kxkb_outlineName(char code)
{
    switch (code) {
    case 'b':
        return QStringLiteral("kbBtnBottomLeft");
    case 'L':
        return QStringLiteral("kbBtnLeft");
    case 'R':
        return QStringLiteral("kbBtnRight");
    case 'B':
        return QStringLiteral("kbBtnBottom");
    default:
        return QStringLiteral("kbBtn");
    }
}

QStringList kxkb_letters(const char *letters, bool upper)
{
    QStringList captions;
    for (const char *c = letters; *c; ++c) {
        const QChar letter = QLatin1Char(*c);
        captions << QString(upper ? letter.toUpper() : letter);
    }
    return captions;
}

const QStringList kxkb_punctuation = {QStringLiteral("."), QStringLiteral(","), QStringLiteral("?"),
                                      QStringLiteral("!"), QStringLiteral("'"), QStringLiteral("\"")};

QList<KeyRow> kxkb_keyRows(int page)
{
    switch (page) {
    case PageLower:
    case PageUpper: {
        const bool upper = page == PageUpper;
        return {{0, 0, kxkb_letters("qwertyuiop", upper), "b........."},
                {1, 1, kxkb_letters("asdfghjkl", upper), "L.......B"},
                {2, 4, kxkb_letters("zxcvbnm", upper), "......R"}};
    }
    case PageNumbers:
        return {{0, 0, kxkb_letters("1234567890", false), "b........."},
                {1, 1,
                 {QStringLiteral("-"), QStringLiteral("/"), QStringLiteral(":"), QStringLiteral(";"),
                  QStringLiteral("("), QStringLiteral(")"), QStringLiteral("$"), kxkb_ampersandLabel,
                  QStringLiteral("@")},
                 "bB.....BB"},
                {2, 4, kxkb_punctuation, "L....R"}};
    default:
        return {{0, 0,
                 {QStringLiteral("["), QStringLiteral("]"), QStringLiteral("{"), QStringLiteral("}"),
                  QStringLiteral("#"), QStringLiteral("%"), QStringLiteral("^"), QStringLiteral("*"),
                  QStringLiteral("+"), QStringLiteral("=")},
                 "bB.....BBB"},
                {1, 3,
                 {QStringLiteral("_"), QStringLiteral("\\"), QStringLiteral("|"), QStringLiteral("~"),
                  QStringLiteral("<"), QStringLiteral(">")},
                 "L....R"},
                {2, 3, kxkb_punctuation, "L....R"}};
    }
}

} // namespace

class QKXKeyboardPrivate
{
public:
    explicit QKXKeyboardPrivate(QKXKeyboard *q) : q_ptr(q) {}

    QPushButton *createButton(QFrame *page, const QString &text, const char *slot, const QString &objectName);
    void buildPage(int page);
    void showPage(int page);
    QList<QPushButton *> keys() const;

    QKXKeyboard *q_ptr;
    // Not owned; guarded because the host may delete a screen while its field is registered.
    QPointer<QObject> filter;
    QString minStyle;
    QString maxStyle;
    QPointer<QWidget> widget;
    // Kept after an edit ends, as the last field edited; guarded against that field going.
    QPointer<QLineEdit> entry;
    QLineEdit *display = nullptr;
    QHBoxLayout *keyRow = nullptr;
    QMap<QString, QPushButton *> buttons[4];
    QStackedWidget *pages = nullptr;
    int width = 680;
    int height = 325;
    QRegExpValidator *validator = nullptr;
    QKXKeyboard::KeyBoardMode keyMode = QKXKeyboard::LOWER_CASES;
    int letterCase = 0;
    QHash<QString, QString> styles;
    QString currentSize = QStringLiteral("Min");
    QString cancelText = QStringLiteral("Cancel");
    QString clearText = QStringLiteral("Clear");
    QString enterText = QStringLiteral("Enter");
    QString spaceText = QStringLiteral("Spacebar");
    QString shiftText = QStringLiteral("Shift");

private:
    Q_DECLARE_PUBLIC(QKXKeyboard)
};

QPushButton *QKXKeyboardPrivate::createButton(QFrame *page, const QString &text, const char *slot,
                                              const QString &objectName)
{
    Q_Q(QKXKeyboard);
    auto *button = new QPushButton(text, page);
    button->setObjectName(objectName);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, SIGNAL(clicked()), q, slot);
    return button;
}

void QKXKeyboardPrivate::buildPage(int page)
{
    auto *frame = new QFrame;
    auto *grid = new QGridLayout(frame);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int column = 0; column < kxkb_columns; ++column) {
        grid->setColumnStretch(column, 1);
    }

    const QList<KeyRow> rows = kxkb_keyRows(page);
    for (const KeyRow &row : rows) {
        for (int i = 0; i < row.captions.size(); ++i) {
            QPushButton *key = createButton(frame, row.captions.at(i), SLOT(buttonPress()), kxkb_outlineName(row.outlines[i]));
            grid->addWidget(key, row.row, row.firstColumn + 2 * i, 1, 2);
        }
    }

    QMap<QString, QPushButton *> &named = buttons[page];
    const bool letters = page == PageLower || page == PageUpper;
    grid->addWidget(createButton(frame, QKXKeyboard::tr(" "), SLOT(buttonBackSpace()), QStringLiteral("bksp")), 0, 20, 1, 2);

    QPushButton *enter = createButton(frame, enterText, SLOT(buttonSubmit()),
                                      page == PageSymbols ? QStringLiteral("enterAllRound") : QStringLiteral("enter"));
    named.insert(QStringLiteral("enter"), enter);
    grid->addWidget(enter, 1, 19, 1, 3);

    QPushButton *clear = createButton(frame, clearText, SLOT(buttonClear()),
                                      letters ? QStringLiteral("clear") : QStringLiteral("clearAllRound"));
    named.insert(QStringLiteral("clear"), clear);
    grid->addWidget(clear, 2, 19, 1, 3);

    if (letters) {
        const bool upper = page == PageUpper;
        QPushButton *shift = createButton(frame, shiftText, upper ? SLOT(swapLowercase()) : SLOT(swapUppercase()),
                                          QStringLiteral("shift"));
        // The upper-case page's shift shows as engaged.
        shift->setCheckable(upper);
        shift->setChecked(upper);
        named.insert(QStringLiteral("shift"), shift);
        grid->addWidget(shift, 2, 0, 1, 4);
    }

    // The bottom row: the page keys either side of the space bar, and cancel.
    QPushButton *space = createButton(frame, spaceText, SLOT(buttonSpace()), QStringLiteral("kbBtnBottom"));
    named.insert(QStringLiteral("space"), space);
    if (letters) {
        grid->addWidget(createButton(frame, QKXKeyboard::tr(".?123"), SLOT(showNumberKeys()),
                                     QStringLiteral("kbBtnBottomLeft")), 3, 0, 1, 6);
        grid->addWidget(space, 3, 6, 1, 9);
        grid->addWidget(createButton(frame, QKXKeyboard::tr("#+="), SLOT(showSymbolKeys()), QStringLiteral("kbBtnBottom")),
                        3, 15, 1, 4);
    } else {
        grid->addWidget(createButton(frame, QKXKeyboard::tr("ABC"), SLOT(showABCKeys()), QStringLiteral("kbBtnBottomLeft")),
                        3, 0, 1, 6);
        grid->addWidget(space, 3, 6, 1, 8);
        QPushButton *other = page == PageNumbers
            ? createButton(frame, QKXKeyboard::tr("#+="), SLOT(showSymbolKeys()), QStringLiteral("kbBtnBottom"))
            : createButton(frame, QKXKeyboard::tr(".?123"), SLOT(showNumberKeys()), QStringLiteral("kbBtnBottom"));
        grid->addWidget(other, 3, 14, 1, 5);
    }
    QPushButton *cancel = createButton(frame, cancelText, SLOT(buttonCancel()), QStringLiteral("cancelBottomRight"));
    named.insert(QStringLiteral("cancel"), cancel);
    grid->addWidget(cancel, 3, 19, 1, 3);

    pages->addWidget(frame);
}

void QKXKeyboardPrivate::showPage(int page)
{
    pages->setCurrentIndex(page);
    // The upper-case page's shift stays engaged however often it is pressed.
    if (QPushButton *shift = buttons[PageUpper].value(QStringLiteral("shift"))) {
        shift->setChecked(true);
    }
}

QList<QPushButton *> QKXKeyboardPrivate::keys() const
{
    Q_Q(const QKXKeyboard);
    return q->getContainerFrame()->findChildren<QPushButton *>();
}

QKXKeyboard::QKXKeyboard(QWidget *parent)
    : ContainerImpl(parent)
    , d_ptr(new QKXKeyboardPrivate(this))
{
    Q_D(QKXKeyboard);
    borderFrame()->setStyleSheet(QStringLiteral("QFrame#BorderFrame {\tbackground-color:transparent;\tborder: none;}"));

    const bool compact = kxkb_isCompactScreen();
    d->minStyle = kxkb_frameAndKeyRules();
    if (kxkb_isOpaque()) {
        d->minStyle += kxkb_opaquePanelRule;
    }
    d->minStyle += kxkb_shiftAndBottomRules;
    if (compact) {
        d->minStyle += kxkb_compactScreenRules;
    }
    d->maxStyle = kxkb_maxStyle;

    if (compact) {
        d->width = 480;
        d->height = 280;
    }
    setNormalSize(d->width, d->height);
    setMinimumSize(d->width, d->height);

    // The default expression takes any text; a host that narrows it narrows typing and setText().
    d->validator = new QRegExpValidator(this);
    controlWidget()->hide();
    initialize();
}

QKXKeyboard::~QKXKeyboard() = default;

void QKXKeyboard::initialize()
{
    Q_D(QKXKeyboard);
    const int w = d->width;
    const int h = d->height;

    auto *mainFrame = new QFrame;
    mainFrame->setObjectName(QStringLiteral("MainFrame"));
    mainFrame->setMinimumSize(w - 4, h - 4);
    auto *frameLayout = new QHBoxLayout;
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->setSpacing(0);
    frameLayout->addWidget(mainFrame);
    ContainerBase::setLayout(frameLayout, false);

    auto *echoOverlay = new QFrame(mainFrame);
    echoOverlay->setObjectName(QStringLiteral("Overlay"));
    echoOverlay->setGeometry(0, 0, w - 60, 64);
    d->display = new QLineEdit(mainFrame);
    d->display->setGeometry(10, 10, w - 20, 40);
    d->display->setReadOnly(true);
    d->display->setEnabled(false);
    auto *strip = new QLabel(mainFrame);
    strip->setGeometry(18, 62, w - 36, 18);
    auto *keyOverlay = new QFrame(mainFrame);
    keyOverlay->setObjectName(QStringLiteral("Overlay"));
    keyOverlay->setGeometry(0, 78, w - 60, h - 82);

    auto *keyArea = new QFrame(mainFrame);
    keyArea->setGeometry(0, 78, w, h - 128);
    auto *keyAreaLayout = new QVBoxLayout(keyArea);
    keyAreaLayout->setContentsMargins(8, 8, 8, 8);
    d->keyRow = new QHBoxLayout;
    d->keyRow->setContentsMargins(0, 0, 0, 0);
    d->keyRow->setSpacing(5);
    keyAreaLayout->addLayout(d->keyRow);
    d->pages = new QStackedWidget(keyArea);
    d->keyRow->addWidget(d->pages, 1);

    for (int page = PageLower; page <= PageSymbols; ++page) {
        d->buildPage(page);
    }

    d->showPage(PageLower);
    setBorder(false);
    updateStyle();
    for (QPushButton *key : d->keys()) {
        key->setFocusProxy(d->entry);
    }
}

QKXKeyboard::KeyBoardMode QKXKeyboard::keyMode() const
{
    Q_D(const QKXKeyboard);
    return d->keyMode;
}

void QKXKeyboard::setKeyMode(KeyBoardMode mode)
{
    Q_D(QKXKeyboard);
    d->keyMode = mode;
}

int QKXKeyboard::getWidth() const
{
    Q_D(const QKXKeyboard);
    return d->width;
}

void QKXKeyboard::setWidth(int width)
{
    Q_D(QKXKeyboard);
    d->width = width;
}

int QKXKeyboard::getHeight() const
{
    Q_D(const QKXKeyboard);
    return d->height;
}

void QKXKeyboard::setHeight(int height)
{
    Q_D(QKXKeyboard);
    d->height = height;
}

QLineEdit *QKXKeyboard::display() const
{
    Q_D(const QKXKeyboard);
    return d->display;
}

QWidget *QKXKeyboard::registeredWidget() const
{
    Q_D(const QKXKeyboard);
    return d->widget;
}

QPushButton *QKXKeyboard::key(const QString &caption) const
{
    Q_D(const QKXKeyboard);
    const int page = d->pages->currentIndex();
    QWidget *shown = d->pages->currentWidget();
    const QList<QPushButton *> onPage = shown->findChildren<QPushButton *>();
    for (QPushButton *button : onPage) {
        if (button->text() == caption) {
            return button;
        }
    }
    if (QPushButton *special = d->buttons[page].value(caption)) {
        return special;
    }
    return shown->findChild<QPushButton *>(caption);
}

void QKXKeyboard::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXKeyboard);
    if (d->filter && d->widget) {
        // One edit at a time: the edit the keyboard was serving gives its text back first, and its
        // end reaches unregister() through the connections that still stand.
        QMetaObject::invokeMethod(d->filter, "cancel");
    }

    d->filter = filter;
    d->widget = widget;
    d->entry = widget ? widget->findChild<QLineEdit *>() : nullptr;
    if (!d->entry) {
        return;
    }

    const QVariant mode = widget->property("EntryMode");
    // 2 is a password field's mode: the echo hides the text as the field does.
    const QLineEdit::EchoMode echo = mode.isValid() && mode.toInt() == 2 ? QLineEdit::Password : QLineEdit::Normal;
    d->entry->setEchoMode(echo);
    d->display->setEchoMode(echo);
    d->display->setText(d->entry->text());

    for (QPushButton *key : d->keys()) {
        key->setFocusProxy(d->entry);
    }

    connect(d->entry.data(), &QLineEdit::textEdited, d->display, &QLineEdit::setText, Qt::UniqueConnection);
    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(done()));
    QKXPopupChain::forward(this, filter, SIGNAL(submit(QString)));
    connect(this, &ContainerBase::WindowOpened, this, &QKXKeyboard::swapLowercase, Qt::UniqueConnection);
    show();
}

void QKXKeyboard::changeSizeSlot(QString size)
{
    Q_D(QKXKeyboard);
    if (d->styles.contains(size)) {
        d->currentSize = size;
    }
    // The container's frame around ours has a sheet of its own: until our frame is polished, Qt keeps
    // that first sheet's rules for the keys, and the keys would never get theirs.
    getContainerFrame()->ensurePolished();
    getContainerFrame()->setStyleSheet(d->styles.value(d->currentSize));
}

void QKXKeyboard::retranslate()
{
    Q_D(QKXKeyboard);
    const struct {
        const char *key;
        const QString *text;
    } labels[] = {
        {"cancel", &d->cancelText}, {"clear", &d->clearText}, {"enter", &d->enterText},
        {"space", &d->spaceText},   {"shift", &d->shiftText},
    };
    for (const QMap<QString, QPushButton *> &page : d->buttons) {
        for (const auto &label : labels) {
            if (QPushButton *button = page.value(QLatin1String(label.key))) {
                button->setText(tr(label.text->toUtf8().constData()));
            }
        }
    }
    ContainerImpl::retranslate();
}

void QKXKeyboard::updateStyle()
{
    Q_D(QKXKeyboard);
    d->styles.insert(QStringLiteral("Min"), d->minStyle);
    d->styles.insert(QStringLiteral("Max"), d->maxStyle);
    changeSizeSlot(d->currentSize);
    ContainerImpl::updateStyle();
}

void QKXKeyboard::showEvent(QShowEvent *event)
{
    Q_D(QKXKeyboard);
    if (d->widget) {
        const QSize size = normalSize().isEmpty() ? this->size() : normalSize();
        const QPoint place = QKXPopupPlacement::besideWidget(this, d->widget, size);
        move(place.x(), place.y());
    }
    ContainerImpl::showEvent(event);
}

void QKXKeyboard::swapUppercase()
{
    Q_D(QKXKeyboard);
    d->showPage(PageUpper);
    d->keyMode = UPPER_CASES;
    d->letterCase = 1;
}

void QKXKeyboard::swapLowercase()
{
    Q_D(QKXKeyboard);
    d->showPage(PageLower);
    d->keyMode = LOWER_CASES;
    d->letterCase = 0;
}

void QKXKeyboard::showABCKeys()
{
    Q_D(QKXKeyboard);
    if (d->letterCase == 1) {
        swapUppercase();
    } else {
        swapLowercase();
    }
}

void QKXKeyboard::showNumberKeys()
{
    Q_D(QKXKeyboard);
    d->showPage(PageNumbers);
    d->keyMode = NUMBERS;
}

void QKXKeyboard::showSymbolKeys()
{
    Q_D(QKXKeyboard);
    d->showPage(PageSymbols);
    d->keyMode = SYMBOLS;
}

void QKXKeyboard::buttonPress()
{
    Q_D(QKXKeyboard);
    auto *button = qobject_cast<QPushButton *>(sender());
    if (!button || !d->entry) {
        return;
    }
    const QString label = button->text();
    insert(label == kxkb_ampersandLabel ? QStringLiteral("&") : label);
}

void QKXKeyboard::buttonSubmit()
{
    Q_D(QKXKeyboard);
    emit submit(d->display->text());
    emit done();
}

void QKXKeyboard::buttonCancel()
{
    hide();
    emit cancelEntry();
}

void QKXKeyboard::buttonSpace()
{
    Q_D(QKXKeyboard);
    if (d->entry) {
        insert(QStringLiteral(" "));
    }
}

void QKXKeyboard::buttonClear()
{
    Q_D(QKXKeyboard);
    if (d->entry) {
        d->entry->clear();
    }
    d->display->clear();
}

void QKXKeyboard::buttonBackSpace()
{
    Q_D(QKXKeyboard);
    if (!d->entry) {
        return;
    }
    const int position = d->entry->cursorPosition();
    if (position <= 0) {
        return;
    }
    QString text = d->entry->text();
    text.remove(position - 1, 1);
    // A sign on its own is no text worth keeping.
    if (text == QLatin1String("-")) {
        text.clear();
    }
    d->entry->setText(text);
    d->display->setText(d->entry->text());
    d->entry->setCursorPosition(position - 1);
}

void QKXKeyboard::unregister()
{
    Q_D(QKXKeyboard);
    if (d->filter) {
        QKXPopupChain::unchainAll(this, d->filter);
    }
    // Typing into the last field outside an edit no longer reaches the echo.
    if (d->entry) {
        disconnect(d->entry.data(), &QLineEdit::textEdited, d->display, &QLineEdit::setText);
    }
    d->widget = nullptr;
    d->filter = nullptr;
    hide();
}

void QKXKeyboard::setText(QString text)
{
    Q_D(QKXKeyboard);
    int position = 0;
    if (d->validator->validate(text, position) == QValidator::Invalid) {
        return;
    }
    if (d->entry) {
        d->entry->setText(text);
    }
    d->display->setText(text);
}

void QKXKeyboard::insert(QString text)
{
    Q_D(QKXKeyboard);
    if (!d->entry) {
        return;
    }
    int point = d->entry->cursorPosition();
    if (d->entry->hasSelectedText()) {
        point = d->entry->selectionStart();
        QString rest = d->entry->text();
        rest.remove(point, d->entry->selectionLength());
        d->entry->setText(rest);
    }
    QString candidate = d->entry->text();
    candidate.insert(point, text);
    int position = point;
    if (d->validator->validate(candidate, position) == QValidator::Invalid) {
        return;
    }
    d->entry->setText(candidate);
    d->entry->setCursorPosition(point + text.size());
    position = point;
    if (d->validator->validate(candidate, position) != QValidator::Invalid) {
        d->display->setText(candidate);
        d->display->setCursorPosition(point + text.size());
    }
}
