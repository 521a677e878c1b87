<?php

/************************/
/* Set e-mail recipient */
/************************/

$to  = "webmaster@tarnquill.example";

/*******************/
/* Validation Code */
/*******************/

$quest5 = check_entry($_POST["quest5"],"1. Please rate your level of satisfaction for question 1");
$quest7 = check_entry($_POST["quest7"],"2. Please select your level of satisfaction for question 2");
$quest9 = $_POST["quest9"];
$quest11 = validate_yesno($_POST["quest11"], "4. Please tell us if you would like to be added to our mailing list for question 4");
$quest13 = validate_yesno($_POST["quest13"], "5. Please tell us if you would like to be added to our mailing list for question 5");
$secur15 = check_entry($_POST["secur15"],"6. Security Code cannot be left blank for question 6");
$secur15 = validate_userpass($_POST["secur15"],"44444444","6. Incorrect Security Code for question 6");

$subje17 = check_entry($_POST["subje17"],"7. Nothing has been entered for the Subject for question 7");
$user 25 = check_entry($_POST["user 25"],"8. User Name cannot be left blank for question 8");
$user 25 = validate_userpass($_POST["user 25"],"memo","8. Incorrect User Name. The User Name is case sensitive for question 8");


/***********************************/
/* Get Public IP Address from User */
/***********************************/

$ip=$_SERVER['REMOTE_ADDR'];

/**********************/
/* Get Today's Date   */
/**********************/

$today=date("l F d, Y");

/***************************************************/
/* In email FROM title after user clicks on submit */
/***************************************************/

$headers="from: Tarnquill Sample Form@\r\n";

$subject="General Question";

/*************************/
/* Message for the email */
/*************************/

$message = "A message has been submitted from
Tarnquill Sample Form@

Date: $today

Send from public IP Address
$ip

1. Please rate your level of satisfaction
$quest5

2. Please rate your level of satisfaction
                 5=Excellent      1=Poor
$quest7

3. Would you like to be added to our mailing list?
$quest9

4. Would you like to be added to our mailing list?
$quest11

5. Would you like to be added to our mailing list?
$quest13

6. For added security, please enter 44444444 for the security code
$secur15

7. Subject
$subje17

8. Enter the User Name
                 (case sensitive)
$user 25

End of message
";

/*----------------------------*/
/* Functions Used in PHP Code */
/*----------------------------*/

/******************************************/
/* Send the message using mail() function */
/******************************************/

mail($to, $subject, $message, $headers);

/******************************************/
/* Redirect visitor to the thank you page */
/******************************************/

header("Location: thankyou.htm");

exit();

/**************************/
/* Validate Email Address */
/**************************/

function validate_email($data1,$problem)
{
  if (!preg_match("/([\w\-]+\@[\w\-]+\.[\w\-]+)/", $data1))
  {
    show_error($problem);
  }
  return $data1;
}

/*********************/
/* Validate Password */
/*********************/

function validate_userpass($AUserPass,$userpassword,$problem)
{
  if($AUserPass!==$userpassword)
  {
     show_error($problem);
  }
    return $AUserPass;
}

/**********************************/
/* Validate Password and download */
/**********************************/

function validate_userpass_download($AUserPass,$userpassword,$problem)

{
  if($AUserPass==$userpassword)
{
     download_file();
}
  elseif($AUserPass=='NONE')
{
    return $AUserPass;
}
elseif($AUserPass!==$userpassword)
{
     show_error($problem);
}
}

/******************************/
/* Get Results from form data */
/******************************/

function getresults_check($results)
{
/* Get all data in check */

  foreach ($results as $value)
  {
   $dataout .= "Checked: $value\n";
  }
  return $dataout;
}

/***********************************/
/* Check if yes or no was checked. */
/***********************************/

function validate_yesno($datayesno, $problem)
{
  if($datayesno=='')
  {
     show_error($problem);
  }
    return $datayesno;
}

/**********************************/
/* Check if check box was checked */
/**********************************/

function validate_check($datacheck, $problem)
{
    if (!isset($datacheck))
  {
     show_error($problem);
  }
    return $datacheck;
}

/*********************************/
/* Check if None was the default */
/*********************************/

function validate_choice($choicedata, $problem)
{
  $choicedata = strtoupper($choicedata);
  if($choicedata=='NOT SELECTED')
  {
     show_error($problem);
  }
    return $choicedata;
}

/*************************************************/
/* Check if yes was checked. Condition statement */
/*************************************************/

function validate_radio($data3, $data4, $problem)
{
  $data3 = strtoupper($data3);
  if($data3=='YES' && $data4=='')
  {
     show_error($problem);
  }
}

/************************************************************/
/* Check if not selected was checked in Condition statement */
/**********************************************************/

function validate_radio_notselected($data3, $data4, $problem)
{
  $data3 = strtoupper($data3);
  $data4 = strtoupper($data4);
  if($data4=='NOT SELECTED' && $data3=='YES')
  {
        show_error($problem);
  }
}

/************************************************************/
/* Check if not selected was checked in Dropdown statement */
/**********************************************************/

function validate_radio_dropdown_notselected($data3, $problem)
{
  $data3 = strtoupper($data3);
  if($data3=='NOT SELECTED')
  {
        show_error($problem);
    }
    return $data3;
}

/***************************/
/* Check if no was checked */
/***************************/

function validate_radio_no($datano)
{
   $datano = strtoupper($datano);
  if($datano=='NO')
  {
     show_error('To download a file, you must select YES');
  }
}

/**************************/
/* Check if entry is NULL */
/**************************/

function check_entry($data, $problem='')
{
    $data = trim($data);
    $data = stripslashes($data);
    $data = htmlspecialchars($data);
    if ($problem && strlen($data) == 0)
    {
        show_error($problem);
    }
    return $data;
}

/*************************/
/* Show Download of file */
/*************************/

function download_file()
{
?>
<html>
<head>
<title>Download</title>
</head>

<body>

<div align="center">
  <center>
<table border="1"cellpadding="0"width="50%"bordercolor="#FF0000"bgcolor="#003300">
   <tr>
    <td width="100%">
<div align="center">
        <table border="0" cellpadding="0" width="98%">
            <tr>
              <td width="100%">
                <p align="center">&nbsp;&nbsp;</td>
            </tr>
            <tr>
              <td width="100%" align="center">
        <p align="center"><b><font color="#FFFFFF" face="arial"><a style="color: #FFFF00"

        </font></b>
    </td>
    </tr>
            <tr>
              <td width="100%" align="center">
        <b><font color="#FFFFFF" face="arial" size="1">&nbsp; </font></b>
    </td>
    </tr>
    </table>
    </center>

    </body>
    </html>
<?php
}

/******************************/
/* Show Error using HTML File */
/******************************/

function show_error($myError)
{
?>
<html>
<head>
<title>Show Error</title>
</head>
    <body>

 <p align="CENTER"></p>"
    <div align="center">
      <center>
      <table border="5" cellpadding="5" width="50%" bgcolor="#006600" bordercolor="#CC3300">
        <tr>
           <td width="100%">
            &nbsp;
            <div align="center">
               <table border="0" cellpadding="6" width="98%" bgcolor="#FF0000">
                <tr>
                   <td width="100%">
                    <p align="center"><font color="#FFFFFF" face="arial" size="4" >
<b>
             <?php echo $myError; ?>
              </b>
            </font></td>
                </tr>
              </table>
            </div>
            <p align="center">
<b>
              <font color="#FFFFFF" face="arial" >
            Please click on the&nbsp; </font><font color="#FFFFFF"><font face="arial" >BACK BUTTON&nbsp;</font></font><font color="#FFFFFF" face="arial" >
             and correct the error<br /><br>
<FORM>
  <p align="center"><INPUT TYPE="button" VALUE="     BACK     " onClick="history.go(-1);return true;" style="font-size: 18pt; font-family: Arial"> </FORM>
            </font>
              </b>

          </td>
        </tr>
      </table>
      </center>

    </body>
    </html>
<?php
exit();
}
?>
